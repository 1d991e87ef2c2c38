#include "engine/parts/date_part.h"
#include "engine/parts/folder_contents_part.h"
#include "engine/parts/item_part_factory.h"
#include "engine/parts/item_parts_list.h"
#include "engine/parts/name_part.h"
#include "engine/parts/path_part.h"
#include "engine/parts/size_part.h"
#include "engine/parts/text_part.h"
#include "support/error_of.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

/// What a stored list of parts writes back, or the error of reading it. Single quotes stand for double ones.
std::string rewritten(std::string json)
{
    std::ranges::replace(json, '\'', '"');
    std::string text;
    const std::string error =
        error_of([&] { text = boost::json::serialize(ItemPartsList(boost::json::parse(json)).to_json()); });
    std::ranges::replace(text, '"', '\'');
    return text.empty() ? error : text;
}

TEST(PartsJson, WritesBackWhatItReadInAStableOrder)
{
    for (const std::string part : {
             "{'text':'a\\nb\\u0000\U0001F389','item-type':'text'}",
             "{'name-type':'full-name','item-type':'name'}",
             "{'name-type':'selector-part','selector-part-index':-1,'case-type':'CamelCase','item-type':'name'}",
             "{'path-type':'link-target','limit-num-parents':true,'num-parents':0,'separator-text':'','case-type':"
             "'UpperCase','item-type':'path'}",
             "{'path-type':'drive-letter-only','limit-num-parents':false,'separator-text':'/','item-type':'path'}",
             "{'size-format':'auto','add-thousands-separator':true,'item-type':'size'}",
             "{'dateType':'accessed','dateFormat':'am-pm','addLeadingZeros':true,'item-type':'date'}",
             "{'start':18446744073709551615,'step':0,'addThousandsSeparator':true,'nDigits':0,'item-type':"
             "'auto-number'}",
             "{'start':1,'step':2,'addThousandsSeparator':false,'item-type':'auto-number'}",
             "{'start':1,'step':2,'addThousandsSeparator':false,'nDigits':4294967295,'item-type':'auto-number'}",
             "{'indentText':'\\t','startText':'[','endText':']','item-type':'folder-files'}",
             "{'indentText':'','startText':'','endText':'','item-type':'folder-subfolders'}",
             "{'checksum-type':'xxhash64','uppercase':true,'item-type':'checksum'}",
         })
        EXPECT_EQ(rewritten("[" + part + "]"), "[" + std::string(part) + "]");
}

TEST(PartsJson, FillsInDefaultsAndOlderForms)
{
    const std::vector<std::pair<std::string, std::string>> cases{
        {"[{'item-type':'path','separator-text':'/'}]",
         "[{'path-type':'full-path','limit-num-parents':false,'separator-text':'/','item-type':'path'}]"},
        {"[{'item-type':'path','separator-text':'/','include-item-name':false,'num-parents':7}]",
         "[{'path-type':'path-to-parent-folder','limit-num-parents':false,'separator-text':'/','item-type':'path'}]"},
        {"[{'item-type':'path','separator-text':'/','include-item-name':'no'}]",
         "[{'path-type':'full-path','limit-num-parents':false,'separator-text':'/','item-type':'path'}]"},
        {"[{'item-type':'name','name-type':'ext-only','case-type':'nonsense'}]",
         "[{'name-type':'ext-only','item-type':'name'}]"},
        {"[{'item-type':'size','size-format':'bytes'}]",
         "[{'size-format':'bytes','add-thousands-separator':false,'item-type':'size'}]"},
        {"[{'item-type':'folder-files'},{'item-type':'from the future','x':1}]",
         "[{'indentText':'','startText':'','endText':'','item-type':'folder-files'}]"},
        {"[]", "[]"},
    };
    for (const auto& [stored, expected] : cases)
        EXPECT_EQ(rewritten(stored), expected);
}

TEST(PartsJson, BadInputIsRefusedWithItsReason)
{
    const std::vector<std::pair<std::string, std::string>> cases{
        {"{}", "JSON value not an array"},
        {"[1]", "JSON value not an object"},
        {"[{}]", "Missing key in JSON: item-type"},
        {"[{'item-type':'text'}]", "Missing key in JSON: text"},
        {"[{'item-type':'name'}]", "Missing key in JSON: name-type"},
        {"[{'item-type':'name','name-type':'x'}]", "Unknown ItemPartName::NameType 'x'"},
        {"[{'item-type':'name','name-type':'selector-part'}]", "Missing key in JSON: selector-part-index"},
        {"[{'item-type':'path','path-type':'x'}]", "Unknown ItemPartPath::PathType 'x'"},
        {"[{'item-type':'path','path-type':'full-path'}]", "Missing key in JSON: separator-text"},
        {"[{'item-type':'path','limit-num-parents':true,'separator-text':''}]", "Missing key in JSON: num-parents"},
        {"[{'item-type':'size'}]", "Missing key in JSON: size-format"},
        {"[{'item-type':'size','size-format':'x'}]", "Unknown ItemPartSize::SizeFormat string"},
        {"[{'item-type':'date','dateFormat':'sec'}]", "Missing key in JSON: dateType"},
        {"[{'item-type':'date','dateType':'x','dateFormat':'sec'}]", "Unknown ItemPartDate::DateType string"},
        {"[{'item-type':'date','dateType':'created','dateFormat':'x'}]", "Unknown ItemPartDate::DateFormat string"},
        {"[{'item-type':'auto-number','step':1}]", "Missing key in JSON: start"},
        {"[{'item-type':'auto-number','start':1}]", "Missing key in JSON: step"},
        {"[{'item-type':'checksum'}]", "Missing key in JSON: checksum-type"},
        {"[{'item-type':'checksum','checksum-type':'x'}]", "Unknown ItemPartChecksum::ChecksumType string"},
    };
    for (const auto& [stored, expected] : cases)
        EXPECT_EQ(rewritten(stored), expected) << stored;
    for (const std::string stored :
         {"[{'item-type':7}]", "[{'item-type':'text','text':null}]",
          "[{'item-type':'size','size-format':'bytes','add-thousands-separator':1}]",
          "[{'item-type':'auto-number','start':-1,'step':1}]", "[{'item-type':'auto-number','start':1.5,'step':1}]",
          "[{'item-type':'auto-number','start':1,'step':18446744073709551616}]",
          "[{'item-type':'auto-number','start':1,'step':1,'nDigits':-1}]",
          "[{'item-type':'auto-number','start':1,'step':1,'nDigits':4294967296}]",
          "[{'item-type':'path','limit-num-parents':true,'num-parents':2147483648,'separator-text':''}]"})
        EXPECT_EQ(rewritten(stored).find("item-type"), std::string::npos) << stored << " was read";
}

TEST(PartsJson, ValuesOutsideTheTablesAreNotWritten)
{
    const auto error_of_writing = [](const ItemPartBase& part) { return error_of([&] { part.to_json(); }); };
    ItemPartName name;
    name.set_name_type(ItemPartName::NameType(7));
    EXPECT_EQ(error_of_writing(name), "Unknown ItemPartName::NameType 7");
    ItemPartPath path;
    path.set_path_type(ItemPartPath::PathType(7));
    EXPECT_EQ(error_of_writing(path), "Unknown ItemPartPath::PathType 7");
    ItemPartSize size;
    size.set_size_format(ItemPartSize::SizeFormat(6));
    EXPECT_EQ(error_of_writing(size), "Unknown ItemPartSize::SizeFormat value");
    ItemPartDate date;
    date.set_date_format(ItemPartDate::DateFormat(21));
    EXPECT_EQ(error_of_writing(date), "Unknown ItemPartDate::DateFormat value");
    EXPECT_THROW(ItemPartFactory::create(ItemPartBase::Type(10)), std::runtime_error);
}

TEST(PartsList, CopiesAreDeepAndOrderCounts)
{
    ItemPartsList list;
    auto text = std::make_shared<ItemPartText>();
    list.append(text);
    list.insert(list.begin(), ItemPartFactory::create(ItemPartBase::Type::Name));
    const ItemPartsList copy = list;
    EXPECT_EQ(copy, list);
    text->set_text(u"changed");
    EXPECT_NE(copy, list);
    text->set_text(u"");
    ItemPartsList other;
    other.append(text);
    other.append(*list.begin());
    EXPECT_NE(other, list);
    other.remove(other.begin());
    EXPECT_EQ(other.size(), 1u);
}

TEST(Parts, AssignTakesTheSameClassOnly)
{
    ItemPartText text;
    ItemPartFolderFiles files;
    ItemPartFolderSubfolders subfolders;
    files.set_indent_text(u"  ");
    text.assign_from(files);
    subfolders.assign_from(files);
    EXPECT_TRUE(text.text().empty());
    EXPECT_TRUE(subfolders.indent_text().empty());
    EXPECT_FALSE(files.equals(subfolders));
    ItemPartFolderFiles more_files;
    more_files.assign_from(files);
    EXPECT_TRUE(more_files.equals(files));
    ItemPartPath path;
    path.set_separator_text(u"");
    EXPECT_EQ(path.separator_text(), u"\\");
}

}
