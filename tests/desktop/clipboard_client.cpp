// A program that copies and ends, or reads: what the application does with the clipboard, without its window. Texts
// are UTF-16 in this machine's byte order, so that malformed ones can be had.
//
//     clipboard_client set < TEXT      prints the milliseconds that it took, or what failed
//     clipboard_client stay < TEXT     the same, then waits for a signal
//     clipboard_client read > TEXT     status 1 when there is none
//     clipboard_client own > TEXT      reads a text that it has copied by the toolkit's means

#include "ui/clipboard/system_clipboard.h"

#include <unistd.h>

#include <QClipboard>
#include <QGuiApplication>

#include <array>
#include <chrono>
#include <iostream>
#include <string>
#include <string_view>

namespace {

std::u16string standard_input()
{
    std::u16string text;
    std::array<char16_t, 1 << 15> piece{};
    do {
        std::cin.read(reinterpret_cast<char*>(piece.data()), sizeof piece);
        text.append(piece.data(), static_cast<std::size_t>(std::cin.gcount()) / sizeof(char16_t));
    } while (std::cin);
    return text;
}

int set(platform::Clipboard& clipboard)
{
    using namespace std::chrono;
    const std::u16string text = standard_input();
    const auto start = steady_clock::now();
    platform::OpenClipboard opened(clipboard);
    if (!opened || !opened.replace_text(text)) {
        std::cout << (opened ? "not set" : "not opened") << std::endl;
        return 1;
    }
    std::cout << duration_cast<milliseconds>(steady_clock::now() - start).count() << std::endl;
    return 0;
}

int read(platform::Clipboard& clipboard)
{
    platform::OpenClipboard opened(clipboard);
    const auto text = opened ? opened.read_text() : std::nullopt;
    if (!text)
        return 1;
    std::cout.write(reinterpret_cast<const char*>(text->data()),
                    static_cast<std::streamsize>(text->size() * sizeof(char16_t)));
    return 0;
}

}

int main(int argc, char* argv[])
{
    const std::string_view work = argc > 1 ? argv[1] : "";
    const QGuiApplication application(argc, argv);
    SystemClipboard clipboard;
    if (work == "own")
        QGuiApplication::clipboard()->setText("own");
    if (work == "own" || work == "read")
        return read(clipboard);
    const int status = set(clipboard);
    if (work == "stay")
        pause();
    return status;
}
