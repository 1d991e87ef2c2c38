#pragma once

#include "engine/commands/mv_command_base.h"

/// A command without options that the file manager's extension carries out.
class MVCommandBuiltin final : public MVCommandBase
{
public:
    MVCommandBuiltin(CommandType type, std::u16string name);
    /// Throws std::runtime_error "Missing key in JSON: " and the key, or "Invalid/missing type for command." for an
    /// invalid type.
    MVCommandBuiltin(CommandType type, const boost::json::object& json);

    CommandType type() const override { return command_type_; }

    std::shared_ptr<MVCommandBase> clone() const override;
    void assign_from(const MVCommandBase& other) override;
    boost::json::object to_json() const override;
    bool equals(const MVCommandBase& other) const override;

private:
    CommandType command_type_;
};
