#include "app/selection_message.h"
#include "fuzz_input.h"
#include "vellumark_select/selection_json.h"

#include <algorithm>

namespace {

/// The message as vellumark-select writes it.
std::string written(const SelectionMessage& message)
{
    const int index = message.command_index;
    SelectionJson json(index < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(index)));
    for (const QString& path : message.paths)
        json.add(path.toStdU16String());
    return json.text();
}

void ignore(QtMsgType, const QMessageLogContext&, const QString&) {}

}

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    // Each message tells the debug log how it went.
    qInstallMessageHandler(ignore);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto message = decode_selection_message(FuzzInput(data, size).rest());
    if (!message)
        return 0;
    require(!message->paths.isEmpty() && !message->paths.contains(QString()), "there are paths");
    const auto again = decode_selection_message(written(*message));
    require(again.has_value(), "what we write can be read");
    require(again->paths == message->paths, "the paths come back");
    require(again->command_index == std::max(message->command_index, -1), "the row comes back");
    return 0;
}
