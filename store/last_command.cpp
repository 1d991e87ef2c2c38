#include "store/last_command.h"

#include "platform/files.h"
#include "store/json_file_reader.h"
#include "store/mv_config.h"

std::shared_ptr<VellumarkCommand> read_last_command()
{
    MVConfig::get_global();
    const std::u16string path = last_command_path();
    if (!platform::exists(path))
        return nullptr;
    const boost::json::value value = read_json_file(path);
    const boost::json::object* object = value.if_object();
    return object ? std::make_shared<VellumarkCommand>(*object) : nullptr;
}

void write_last_command(const VellumarkCommand& command)
{
    MVConfig::get_global();
    const std::u16string path = last_command_path();
    const std::string content = boost::json::serialize(command.to_json());
    create_parent_directories(path);
    static_cast<void>(platform::write_file(path, content));
}
