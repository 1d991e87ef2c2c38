#include "engine/parts/text_output.h"
#include "fuzz_input.h"

#include <array>
#include <memory>
#include <vector>

namespace {

/// What nesting means, step by step: a whole inner text is indented and framed, then written to the outer one.
struct PlainOutput {
    TextOutput::Frame frame;
    std::u16string text;

    std::u16string framed() const
    {
        if (text.empty())
            return {};
        std::u16string lines(frame.indent);
        for (std::size_t i = 0; i < text.size(); ++i) {
            lines += text[i];
            if (text[i] == u'\n' && i + 1 < text.size())
                lines += frame.indent;
        }
        return std::u16string(frame.start).append(lines).append(frame.end);
    }
};

constexpr std::array<std::u16string_view, 8> texts{u"", u"a", u"\n", u"b\n", u"\nc", u"\n\n", u"  ", u"d\ne"};
constexpr std::size_t most_outputs = 8; // each line feed in an indent doubles the indent of the next output

class Pair
{
public:
    void open(unsigned choice)
    {
        const TextOutput::Frame frame{texts[choice & 7], texts[choice >> 3 & 7], texts[choice >> 5 & 7]};
        plain_.push_back({frame, {}});
        nested_.push_back(std::make_unique<TextOutput>(*nested_.back(), plain_.back().frame));
    }

    void append(std::u16string_view text)
    {
        plain_.back().text += text;
        nested_.back()->append(text);
        require(nested_.back()->empty() == plain_.back().text.empty(), "both are empty");
    }

    void close()
    {
        nested_.back()->close();
        nested_.pop_back();
        const std::u16string framed = plain_.back().framed();
        plain_.pop_back();
        plain_.back().text += framed;
    }

    std::size_t depth() const { return plain_.size(); }

    void finish()
    {
        while (depth() > 1)
            close();
        require(nested_.back()->take() == plain_.back().text, "both texts are the same");
    }

private:
    std::vector<PlainOutput> plain_{1};
    std::vector<std::unique_ptr<TextOutput>> nested_ = [] {
        std::vector<std::unique_ptr<TextOutput>> outputs;
        outputs.push_back(std::make_unique<TextOutput>());
        return outputs;
    }();
};

}

/// "<" and a byte open an output, ">" closes one, any other byte writes a text.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzInput input(data, size);
    Pair pair;
    while (!input.rest().empty()) {
        const unsigned byte = input.byte();
        if (byte == '<' && pair.depth() < most_outputs)
            pair.open(input.byte());
        else if (byte == '>' && pair.depth() > 1)
            pair.close();
        else
            pair.append(texts[byte & 7]);
    }
    pair.finish();
    return 0;
}
