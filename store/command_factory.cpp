#include "store/command_factory.h"

#include "engine/commands/vellumark_command.h"
#include "engine/text/json_access.h"
#include "store/mv_command_builtin.h"

std::shared_ptr<MVCommandBase> command_from_json(const boost::json::object& json)
{
    const auto* row = find_json(command_types, json_access::required_string(json, "commandType"));
    if (!row)
        return nullptr;
    if (row->value == CommandType::Vellumark)
        return std::make_shared<VellumarkCommand>(json);
    return std::make_shared<MVCommandBuiltin>(row->value, json);
}
