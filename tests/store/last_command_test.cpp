#include "store/json_file_reader.h"
#include "store/last_command.h"
#include "store_test.h"

namespace {

using LastCommand = StoreTest;

TEST_F(LastCommand, ComesBackWithUnsavedEdits)
{
    EXPECT_EQ(read_last_command(), nullptr);
    VellumarkCommand command(u"Ä");
    command.commit();
    command.set_start_text(u"edited");
    for (const std::u16string separator : {u"a long one", u","}) {
        command.set_separator(separator);
        write_last_command(command);
        const auto read = read_last_command();
        ASSERT_NE(read, nullptr);
        EXPECT_EQ(serialize(read->to_json()), serialize(command.to_json()));
        EXPECT_FALSE(read->from_previous_session());
    }
    EXPECT_EQ(content(last_file), serialize(command.to_json()));
}

TEST_F(LastCommand, OtherContent)
{
    folder.write(last_file, "[{}]");
    EXPECT_EQ(read_last_command(), nullptr);
    folder.write(last_file, R"({"name":"A"})");
    EXPECT_EQ(error_of(read_last_command), "Missing key in JSON: separator");
    folder.write(last_file, "");
    EXPECT_THROW(read_last_command(), JsonFileReaderException);
}

TEST_F(LastCommand, FailedWriteIsSilent)
{
    folder.make_folder(last_file);
    EXPECT_EQ(error_of([] { write_last_command(VellumarkCommand(u"A")); }), "no error");
    EXPECT_THROW(read_last_command(), JsonFileReaderException);
    const TempFolder other;
    other.write("file");
    const ScopedVariable user("XDG_CONFIG_HOME", other.host("file"));
    EXPECT_EQ(error_of([] { write_last_command(VellumarkCommand(u"A")); }).substr(0, 18), "create_directories");
}

}
