#include "platform/files.h"

#include <filesystem>

#include "platform/failure.h"

namespace gullymark::platform {
namespace {

std::string& program_folder_set() {
    static std::string folder;
    return folder;
}

}  // namespace

bool file_exists(const std::string& path) {
    std::error_code error;
    const auto status = std::filesystem::status(path, error);
    return !error && std::filesystem::exists(status) && !std::filesystem::is_directory(status);
}

void copy_file(const std::string& source, const std::string& target) {
    try {
        std::filesystem::copy_file(source, target, std::filesystem::copy_options::overwrite_existing);
        std::filesystem::permissions(target, std::filesystem::perms::owner_write,
                                     std::filesystem::perm_options::add);
    } catch (const std::filesystem::filesystem_error& error) {
        throw Failure(error.code().message() + ": " + (file_exists(source) ? target : source));
    }
}

std::string current_folder() {
    std::error_code error;
    const auto folder = std::filesystem::current_path(error);
    if (error) {
        throw Failure(error.message());
    }
    return folder.string();
}

void set_current_folder(const std::string& folder) {
    std::error_code error;
    std::filesystem::current_path(folder, error);
    if (error) {
        throw Failure(error.message() + ": " + folder);
    }
}

std::string program_folder() {
    return program_folder_set();
}

void set_program_folder(const std::string& folder) {
    program_folder_set() = folder;
}

std::string join_path(const std::string& folder, const std::string& name) {
    return (std::filesystem::path(folder) / name).string();
}

}  // namespace gullymark::platform
