#include "engine/items/mv_item_base.h"
#include "engine/parts/name_part.h"
#include "engine/parts/text_run_context.h"
#include "engine/text/case_type.h"
#include "fuzz_input.h"

namespace {

std::u16string text_of(const MVItemBase& item, ItemPartName::NameType type, CaseType case_type)
{
    ItemPartName part;
    part.set_name_type(type);
    part.set_case_type(case_type);
    TextRunContext context;
    part.append_text(context, item, 0);
    return context.output.take();
}

}

/// A name as a file has it: its two halves are the whole, in each case style.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using Type = ItemPartName::NameType;
    const std::u16string name = FuzzInput(data, size).text();
    const auto item = make_item({{}, name}, nullptr);
    const auto plain = [&](Type type) { return text_of(*item, type, CaseType::Unchanged); };
    const std::u16string before = plain(Type::NameNoExt), after = plain(Type::ExtOnly), whole = plain(Type::FullName);
    if (name.find(u'.') == name.npos)
        require(before == whole && after.empty(), "no extension without a dot");
    else
        require(before + u"." + after == whole, "the halves and a dot are the whole");
    for (const auto& row : case_types)
        for (const Type type : {Type::FullName, Type::NameNoExt, Type::ExtOnly, Type::SelectorPart}) {
            const std::u16string text = text_of(*item, type, row.value);
            require(type != Type::SelectorPart || text.empty(), "no selector, no text");
            require(text.size() <= 3 * name.size() + 3, "a style adds a separator a character at the most");
        }
    return 0;
}
