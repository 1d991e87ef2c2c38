#include "store/last_command.h"

#include "platform/files.h"
#include "store/json_file_reader.h"
#include "store/mv_config.h"

namespace {

/// Where the user's files lie is known without the configuration, but no stored file is touched before there is one.
std::u16string checked_path()
{
    MVConfig::get_global();
    return last_command_path();
}

}

std::shared_ptr<VellumarkCommand> read_last_command()
{
    const std::u16string path = checked_path();
    if (!platform::exists(path))
        return nullptr;
    const boost::json::value value = read_json_file(path);
    const boost::json::object* object = value.if_object();
    return object ? std::make_shared<VellumarkCommand>(*object) : nullptr;
}

void write_last_command(const VellumarkCommand& command)
{
    const std::u16string path = checked_path();
    const std::string content = boost::json::serialize(command.to_json());
    create_parent_directories(path);
    static_cast<void>(platform::replace_content(path, content));
}
