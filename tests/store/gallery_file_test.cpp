#include "store/gallery_file.h"
#include "store_test.h"

namespace {

class GalleryFile : public StoreTest
{
protected:
    /// What a gallery with this text gives, such as "[A (category: description), B (: )]", and the error's text
    /// behind it.
    std::string read(std::string_view text) const
    {
        folder.write("app/VKGallery.json", text);
        std::vector<GalleryEntry> entries(3);
        const std::string error = error_of([&] { read_gallery(entries); });
        std::string result;
        for (const GalleryEntry& entry : entries)
            result += (result.empty() ? "" : ", ") +
                      to_utf8(entry.command->name() + u" (" + entry.category + u": " + entry.description + u")");
        return "[" + result + "] " + error;
    }

    std::string read_entries(const std::string& elements) const
    {
        return read(R"({"further":1,"galleryCommands":[)" + elements + "]}");
    }
};

TEST_F(GalleryFile, UnusableFiles)
{
    std::vector<GalleryEntry> entries(3);
    EXPECT_EQ(error_of([&] { read_gallery(entries); }), "app\\VKGallery.json: Missing File");
    EXPECT_TRUE(entries.empty());
    EXPECT_EQ(read("{"), "[] app\\VKGallery.json: Invalid JSON (incomplete JSON)");
    EXPECT_EQ(read("[]"), "[] app\\VKGallery.json: Invalid Data (Root element is not a JSON object)");
    EXPECT_EQ(read("{}"), "[] JSON value missing: galleryCommands");
    EXPECT_EQ(read(R"({"galleryCommands":null})"), "[] JSON value not an array: galleryCommands");
}

TEST_F(GalleryFile, Entries)
{
    EXPECT_EQ(read_entries(""), "[] no error");
    const std::string first = command_json("A", R"(,"category":"Ä","description":"Copies.")");
    EXPECT_EQ(read_entries(first + R"(,{"commandType":"Configure","name":"B","separator":"","fileParts":[]})"),
              "[A (Ä: Copies.), B (: )] no error");
    // What stands before the fault is there.
    EXPECT_EQ(read_entries(first + ",5"),
              "[A (Ä: Copies.)] Element in JSON array 'galleryCommands' is not an object");
    EXPECT_EQ(read_entries(first + R"(,{"name":"B"})"), "[A (Ä: Copies.)] Missing key in JSON: separator");
    const boost::json::value number = 1;
    const std::string not_string = error_of([&] { static_cast<void>(number.as_string()); });
    const std::string result = read_entries(command_json("B", R"(,"category":1)"));
    EXPECT_EQ(result.substr(0, 3 + not_string.size()), "[] " + not_string);
}

}
