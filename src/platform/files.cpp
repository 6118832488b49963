#include "platform/files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <filesystem>
#include <span>

#include "platform/failure.h"

namespace gullymark::platform {
namespace {

std::string& program_folder_set() {
    static std::string folder;
    return folder;
}

namespace fs = std::filesystem;

/// A link stays a link: what it leads to is replaced.
fs::path end_of_links(const fs::path& path) {
    std::error_code error;
    const auto end = fs::canonical(path, error);
    return error ? path : end;
}

/// An open file. What fails is thrown with the system's own reason: the library's copy tells a full disk as a fault of
/// input and output.
class OpenFile {
  public:
    OpenFile(const fs::path& path, int how) : id_(open(path.c_str(), how | O_CLOEXEC, S_IRUSR | S_IWUSR)) {
        check(id_);
    }
    ~OpenFile() { close(id_); }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    [[nodiscard]] std::size_t read_some(std::span<char> bytes) const {
        return check(read(id_, bytes.data(), bytes.size()));
    }
    void write_all(std::span<const char> bytes) const {
        while (!bytes.empty()) {
            bytes = bytes.subspan(check(write(id_, bytes.data(), bytes.size())));
        }
    }
    /// On the disk, whatever happens next. A file system that cannot say so is believed.
    void synchronise() const { static_cast<void>(fsync(id_)); }

  private:
    static std::size_t check(ssize_t result) {
        if (result < 0) {
            throw fs::filesystem_error("", std::error_code(errno, std::generic_category()));
        }
        return static_cast<std::size_t>(result);
    }

    int id_;
};

void copy_bytes(const fs::path& source, const fs::path& part) {
    const OpenFile from(source, O_RDONLY);
    const OpenFile to(part, O_WRONLY | O_CREAT | O_TRUNC);
    std::array<char, 65536> bytes{};
    while (const auto count = from.read_some(bytes)) {
        to.write_all(std::span(bytes).first(count));
    }
    to.synchronise();
}

void copy_whole(const fs::path& source, const fs::path& target, const fs::path& part) {
    copy_bytes(source, part);
    const auto model = fs::exists(target) ? target : source;
    fs::permissions(part, fs::status(model).permissions() | fs::perms::owner_write);
}

}  // namespace

bool file_exists(const std::string& path) {
    std::error_code error;
    const auto status = std::filesystem::status(path, error);
    return !error && std::filesystem::exists(status) && !std::filesystem::is_directory(status);
}

void copy_file(const std::string& source, const std::string& target,
               const std::vector<std::string>& going_along) {
    const fs::path end = end_of_links(target);
    const fs::path part = end.string() + ".part";
    try {
        copy_whole(source, end, part);
        for (const auto& ending : going_along) {
            fs::remove(end.string() + ending);
        }
        fs::rename(part, end);
        OpenFile(end.parent_path(), O_RDONLY).synchronise();
    } catch (const fs::filesystem_error& error) {
        std::error_code ignored;
        fs::remove(part, ignored);
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
