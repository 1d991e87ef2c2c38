#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

enum class FileKind : std::uint32_t {
    DefaultCommands, ///< read for a first start and for a reset
    UserCommands,
    DefaultPresets,
    Gallery
};

/// Where stored files lie. One object for the process, installed at its start; from then on any thread may ask it.
class MVConfig
{
public:
    virtual ~MVConfig() = default;
    MVConfig(const MVConfig&) = delete;
    MVConfig& operator=(const MVConfig&) = delete;

    /// Path of a file in drive form, whether it exists or not.
    virtual std::u16string path(FileKind kind) const = 0;

    /// With a backslash at its end unless it is empty.
    const std::u16string& install_folder() const { return install_folder_; }

    /// Replaces and destroys the object that was installed before; null removes it. Before other threads ask.
    static void set_global(std::unique_ptr<MVConfig> config);
    /// Throws std::runtime_error while none is installed.
    static MVConfig& get_global();

protected:
    explicit MVConfig(std::u16string install_folder);

private:
    std::u16string install_folder_;
};

/// The files of the installed program and of the user who runs it.
class MVConfigLive final : public MVConfig
{
public:
    /// `install_folder` is the folder of the program's file, in drive form.
    static void install(std::u16string install_folder);

    /// Throws as `user_data_folder` does for the user's file. The machine-wide default file is looked for anew at
    /// each call.
    std::u16string path(FileKind kind) const override;

private:
    using MVConfig::MVConfig;
};

/// Folder of the user's own files, with a backslash at its end. Throws std::runtime_error when the machine doesn't
/// tell the user's settings folder.
std::u16string user_data_folder();

/// Path of the file that keeps the last command run.
std::u16string last_command_path();
