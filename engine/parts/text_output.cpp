#include "engine/parts/text_output.h"

#include <algorithm>
#include <utility>

TextOutput::TextOutput() : page_(&own_page_) {}

TextOutput::TextOutput(TextOutput& parent, const Frame& frame) : page_(parent.page_), parent_(&parent), frame_(frame)
{}

void TextOutput::append(std::u16string_view text)
{
    if (text.empty())
        return;
    open();
    if (page_->indents.empty())
        page_->text += text;
    else
        write_lines(text);
}

void TextOutput::open()
{
    if (!empty_)
        return;
    empty_ = false;
    if (!parent_)
        return;
    parent_->open();
    parent_->append(frame_.start);
    indent_begin_ = page_->indents.size();
    const std::u16string outer = page_->indents;
    for (const char16_t unit : frame_.indent) {
        page_->indents += unit;
        if (unit == u'\n')
            page_->indents += outer;
    }
}

void TextOutput::write_lines(std::u16string_view text)
{
    while (!text.empty()) {
        const std::size_t length = std::min(text.find(u'\n'), text.size() - 1) + 1;
        page_->text.append(page_->indents, page_->due).append(text.substr(0, length));
        page_->due = text[length - 1] == u'\n' ? 0 : page_->indents.size();
        text.remove_prefix(length);
    }
}

void TextOutput::close()
{
    if (!parent_ || empty_)
        return;
    page_->indents.resize(indent_begin_);
    page_->due = std::min(page_->due, indent_begin_);
    parent_->append(frame_.end);
}

std::u16string TextOutput::take()
{
    empty_ = true;
    return std::exchange(page_->text, {});
}
