#include "platform/clipboard.h"

#include "platform/host/descriptor.h"
#include "platform/host/text_streams.h"
#include "platform/known_folders.h"
#include "platform/paths.h"

#include <fcntl.h>
#include <sys/mman.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <vector>

namespace platform {

namespace {

using namespace std::chrono_literals;

/// For a program to start and to own the clipboard, and for its reading of so many bytes.
constexpr auto keeper_patience = 5s;
constexpr std::uint64_t bytes_in_a_second = 20'000'000;
/// An owner that hangs must not hold up who only asks.
constexpr auto reader_patience = 2s;

bool is_set(const char* variable)
{
    const char* const value = std::getenv(variable);
    return value && *value != '\0';
}

/// A Wayland program without a window can't take the clipboard by itself; this one knows the ways around.
ProgramCall wayland_program(std::vector<std::string> options)
{
    return {"wl-copy", std::move(options)};
}

ProgramCall own_program(std::string option)
{
    return {to_host_path(program_folder() + u"\\vellumark-clipboard"), {std::move(option)}};
}

/// The programs that can keep a text, the best first: each takes it from its standard input and ends with status 0
/// when a process that it leaves behind owns the clipboard.
std::vector<ProgramCall> keepers(WindowSystem system)
{
    std::vector<ProgramCall> calls;
    if (is_set("WAYLAND_DISPLAY"))
        calls.push_back(wayland_program({"--type", "text/plain;charset=utf-8"}));
    // It would succeed beside a Wayland window too, and nobody there would see the text.
    if (system == WindowSystem::x11)
        calls.push_back(own_program("--keep"));
    return calls;
}

/// The text as UTF-8 in a file that only lies in memory; none when it doesn't fit there.
Descriptor in_memory(std::u16string_view text)
{
    Descriptor file(memfd_create("clipboard", MFD_CLOEXEC));
    return file && write_utf8(file.get(), text) ? std::move(file) : Descriptor();
}

Deadline keeper_deadline(int content)
{
    const off_t size = lseek(content, 0, SEEK_END);
    return std::chrono::steady_clock::now() + keeper_patience +
           std::chrono::seconds(static_cast<std::uint64_t>(size) / bytes_in_a_second);
}

class HostClipboard final : public Clipboard
{
public:
    explicit HostClipboard(WindowSystem system) : system_(system) {}

    bool open() override { return is_set("DISPLAY") || is_set("WAYLAND_DISPLAY"); }

    bool empty() override { return true; }

    bool set_text(std::u16string_view text) override
    {
        const Descriptor content = in_memory(text);
        if (!content)
            return false;
        return std::ranges::any_of(keepers(system_), [&](const ProgramCall& keeper) {
            // Its own: one that hangs must leave time for the next.
            const Deadline deadline = keeper_deadline(content.get());
            lseek(content.get(), 0, SEEK_SET);
            return HelperProgram(keeper, {content.get(), -1}).succeeds(deadline);
        });
    }

    std::optional<std::u16string> read_text() override
    {
        std::array<int, 2> ends{};
        if (pipe2(ends.data(), O_CLOEXEC) != 0)
            return std::nullopt;
        const Deadline deadline = std::chrono::steady_clock::now() + reader_patience;
        const Descriptor out(ends[0]);
        Descriptor in(ends[1]);
        HelperProgram reader(own_program("--read"), {-1, in.get()});
        in = Descriptor();
        const std::optional<std::string> bytes = read_all(out.get(), deadline);
        return bytes && reader.succeeds(deadline) ? std::optional(decode_utf8(*bytes)) : std::nullopt;
    }

    void close() override {}

private:
    const WindowSystem system_;
};

}

std::unique_ptr<Clipboard> make_clipboard(WindowSystem system)
{
    return std::make_unique<HostClipboard>(system);
}

bool needs_x11_windows()
{
    return is_set("WAYLAND_DISPLAY") && is_set("DISPLAY") &&
           !HelperProgram(wayland_program({"--version"}), {}).succeeds(std::chrono::steady_clock::now() + 2s);
}

}
