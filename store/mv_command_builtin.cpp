#include "store/mv_command_builtin.h"

#include <stdexcept>

MVCommandBuiltin::MVCommandBuiltin(CommandType type, std::u16string name)
    : MVCommandBase(std::move(name)), command_type_(type)
{}

MVCommandBuiltin::MVCommandBuiltin(CommandType type, const boost::json::object& json)
    : MVCommandBase(json), command_type_(type)
{
    if (!find_value(command_types, type))
        throw std::runtime_error("Invalid/missing type for command.");
}

std::shared_ptr<MVCommandBase> MVCommandBuiltin::clone() const
{
    auto copy = std::make_shared<MVCommandBuiltin>(*this);
    copy->set_from_previous_session(false);
    return copy;
}

void MVCommandBuiltin::assign_from(const MVCommandBase& other)
{
    if (const auto* command = dynamic_cast<const MVCommandBuiltin*>(&other))
        command_type_ = command->command_type_;
}

boost::json::object MVCommandBuiltin::to_json() const
{
    return common_json();
}

bool MVCommandBuiltin::equals(const MVCommandBase& other) const
{
    const auto* command = dynamic_cast<const MVCommandBuiltin*>(&other);
    return MVCommandBase::equals(other) && command && command_type_ == command->command_type_;
}
