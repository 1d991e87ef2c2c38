#include "engine/commands/vellumark_command.h"
#include "fuzz_input.h"

/// The form of the last command's file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto value = FuzzInput(data, size).json();
    if (!value || !value->is_object())
        return 0;
    const auto command = accepted([&] { return VellumarkCommand(value->get_object()); });
    if (!command)
        return 0;
    const auto written = command->to_json();
    const VellumarkCommand again(written);
    require(again.to_json() == written, "written the same");
    // What is switched off isn't written, so only what was written once comes back equal.
    require(VellumarkCommand(again.to_json()).equals(again), "read back equal");
    require(command->clone()->equals(*command), "a copy is equal");
    return 0;
}
