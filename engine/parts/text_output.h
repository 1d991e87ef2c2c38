#pragma once

#include <string>
#include <string_view>

/// Where the parts of one template write. The outermost output owns the text. A nested output writes through to it:
/// its text stands between a start and an end text and has an indent before each of its lines, and when nothing is
/// written to it nothing of all that appears. Indents are put in as the lines come, so that a text costs time
/// linear in its length however deep the outputs are nested.
class TextOutput
{
public:
    /// Around and in front of the lines of a nested output. A line feed that ends the output's text gets no indent
    /// behind it.
    struct Frame {
        std::u16string_view start, indent, end;
    };

    TextOutput();
    /// The innermost output alone may be written to; `parent` and the texts outlive this one.
    TextOutput(TextOutput& parent, const Frame& frame);
    TextOutput(const TextOutput&) = delete;
    TextOutput& operator=(const TextOutput&) = delete;

    void append(std::u16string_view text);

    /// True while nothing has been written to this output.
    bool empty() const { return empty_; }

    /// Ends a nested output; to be called once, after its last text.
    void close();

    /// The whole text of the outermost output, which is empty afterwards.
    std::u16string take();

private:
    /// Shared by all outputs of one text.
    struct Page {
        std::u16string text;
        std::u16string indents; ///< of the open outputs, from the outside in, each indented by those before it
        std::size_t due = 0;    ///< `indents` from here on has yet to be written before the next character
    };

    void open();
    void write_lines(std::u16string_view text);

    Page own_page_;
    Page* page_;
    TextOutput* parent_ = nullptr;
    Frame frame_;
    std::size_t indent_begin_ = 0;
    bool empty_ = true;
};
