#include "app/mirvanta_named_pipe_server.h"
#include "debug_log.h"
#include "read_selection.h"
#include "support/temp_folder.h"
#include "ui/text.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

/// What a message without any transport leads to: the selection as "INDEX: PATH, PATH", then the log.
std::string outcome(const QByteArray& message)
{
    const DebugLog log;
    Serving<MirvantaNamedPipeServer> server;
    QString text;
    QObject::connect(
        &server, &MirvantaNamedPipeServer::context_menu_selected,
        [&](int index, const QStringList& paths) { text += QString::number(index) + ": " + paths.join(", ") + " "; });
    server.message_received({message.begin(), message.end()});
    return text.toStdString() + DebugLog::text();
}

QByteArray message_of(qsizetype size)
{
    return QByteArray(R"({"paths":["C:\\a"]})").leftJustified(size, ' ');
}

}

TEST(SelectionMessage, Decoding)
{
    const std::string taken = " Message received|OK", no_paths = "Message received|OK|No paths";
    const std::string invalid = "Message received|Invalid JSON received";
    for (const auto& [message, expected] : std::vector<std::pair<QByteArray, std::string>>{
             {R"({"commandIndex":2,"paths":["C:\\a.txt",""]})", "2: C:\\a.txt" + taken},
             {R"({"paths":["C:\\b","C:\\a","C:\\b"]})", "-1: C:\\b, C:\\a, C:\\b" + taken},
             {R"({"commandIndex":-7,"paths":["x"],"more":{}})", "-7: x" + taken},
             {R"({"commandIndex":1.5,"paths":["x"]})", "-1: x" + taken},
             {R"({"commandIndex":3e9,"paths":["x"]})", "-1: x" + taken},
             {R"({"commandIndex":"1","paths":[1,"x",null,["y"],{"z":1}]})", "-1: x" + taken},
             {"{\"paths\":[\"\xC3\xA9\xF0\x9F\x98\x80\"]}", "-1: \xC3\xA9\xF0\x9F\x98\x80" + taken},
             {R"({"commandIndex":1})", no_paths},
             {R"({"paths":[]})", no_paths},
             {R"({"paths":{"0":"x"}})", no_paths},
             {R"([{"paths":["x"]}])", no_paths},
             {R"("paths")", invalid},
             {R"({"paths":["x"])", invalid},
             {"{\"paths\":[\"\xFF\"]}", invalid},
             {QByteArray(100'000, '['), invalid},
             {"", invalid},
             {message_of(8'388'608), "-1: C:\\a" + taken},
             {message_of(8'388'609), "Message received|Message too large: 8388609 bytes"}})
        EXPECT_EQ(outcome(message), expected) << message.left(60).constData();
}

TEST(SelectionMessage, EveryFileOfTheHostCanBeSelected)
{
    const TempFolder folder;
    for (const std::string_view name :
         {"\xFF\xC3(", "back\\slash", "\xED\xA0\x80", "\xEF\x81\x9C", "\xF0\x9F\x98\x80"}) {
        const std::u16string path = folder.write(name);
        QByteArray message("{\"paths\":[\"");
        for (const char16_t unit : path)
            message += "\\u" + QByteArray::number(unit, 16).rightJustified(4, '0');
        const DebugLog log;
        Serving<MirvantaNamedPipeServer> server;
        std::shared_ptr<NewSelection> selection;
        QObject::connect(&server, &MirvantaNamedPipeServer::context_menu_selected,
                         [&](int, const QStringList& paths) { selection = read_selection(paths); });
        message += "\"]}";
        server.message_received({message.begin(), message.end()});
        EXPECT_EQ(selection->items.items().size(), 1u) << name;
    }
}

TEST(SelectionMessage, EnteringLeavesOutWhatCanNotBeAdded)
{
    const TempFolder folder;
    const QString file = to_qstring(folder.write("a%2"));
    const QString gone = to_qstring(folder.path("gone%1"));
    const DebugLog log;
    EXPECT_EQ(read_selection({file, file})->items.items().size(), 2u);
    EXPECT_EQ(read_selection({"relative", gone, file})->items.items().size(), 1u);
    EXPECT_EQ(DebugLog::text(), "Exception adding path 'relative': Path not absolute|Exception adding path '" +
                                    gone.toStdString() + "': GetFileAttributesEx failed");
}
