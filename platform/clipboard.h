#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

/// The clipboard that all programs of a desktop share. A text that was set must outlive the program that set it.
namespace platform {

/// One program's way to the clipboard. Nothing but `open` may be called while it is not open. Main thread only; each
/// call ends within seconds, whatever other programs do.
class Clipboard
{
public:
    virtual ~Clipboard() = default;

    /// False, and nothing to close, when the clipboard can't be had now: another program holds it, or there is none.
    ///
    /// Here no program can hold it, as X11 and Wayland know no lock; there is none where neither $DISPLAY nor
    /// $WAYLAND_DISPLAY tells of a desktop.
    virtual bool open() = 0;

    /// Makes room for a text. What was there is lost at the latest with the next text, but may stay until then, so
    /// that a failure loses nothing.
    virtual bool empty() = 0;

    /// Puts the text there; a surrogate without its partner becomes U+FFFD. True only when the text is there to stay:
    /// when this program ends, it is still there. After false it is not there.
    virtual bool set_text(std::u16string_view text) = 0;

    /// Empty when there is no text, or its owner doesn't give it in time.
    virtual std::optional<std::u16string> read_text() = 0;

    virtual void close() = 0;

protected:
    Clipboard() = default;
    Clipboard(const Clipboard&) = default;
    Clipboard& operator=(const Clipboard&) = default;
};

/// An opened clipboard, closed when the object goes.
class OpenClipboard
{
public:
    explicit OpenClipboard(Clipboard& clipboard) : clipboard_(clipboard), is_open_(clipboard.open()) {}

    ~OpenClipboard()
    {
        if (is_open_)
            clipboard_.close();
    }

    OpenClipboard(const OpenClipboard&) = delete;
    OpenClipboard& operator=(const OpenClipboard&) = delete;

    explicit operator bool() const { return is_open_; }

    /// Puts `text` in the place of what is there.
    bool replace_text(std::u16string_view text) { return clipboard_.empty() && clipboard_.set_text(text); }

    std::optional<std::u16string> read_text() { return clipboard_.read_text(); }

private:
    Clipboard& clipboard_;
    const bool is_open_;
};

/// What shows a program's windows. Wayland's programs see what an X11 program has copied only if that had the focus.
enum class WindowSystem { x11, wayland };

/// The clipboard of this desktop as a program with windows of that system has it. Texts are handed to a program that
/// keeps them; `read_text` asks another program, so it gets nothing from the caller's own process: a toolkit that
/// owns the clipboard there has to be asked instead.
std::unique_ptr<Clipboard> make_clipboard(WindowSystem system);

/// Whether a desktop that shows windows of both systems lets only X11's copy texts to stay. Takes milliseconds, at
/// the most seconds.
bool needs_x11_windows();

}
