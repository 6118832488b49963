#include "platform/files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <span>
#include <utility>

#include "platform/failure.h"

namespace gullymark::platform {
namespace {

std::string& program_folder_set() {
    static std::string folder;
    return folder;
}

namespace fs = std::filesystem;

/// A link stays a link: what it leads to is replaced.
fs::path end_of_links(const std::string& path) {
    std::error_code error;
    auto end = fs::canonical(path, error);
    if (error) {
        end = fs::absolute(path, error);
    }
    return error ? fs::path(path) : end;
}

/// Only ordinary files are read or replaced: a pipe could keep us waiting for ever.
void check_kind(mode_t mode, const std::string& path) {
    if (S_ISDIR(mode)) {
        fail(EISDIR, path);
    }
    if (!S_ISREG(mode)) {
        throw Failure("This is no ordinary file: " + path);
    }
}

/// An open file. What fails is told with the system's own reason, as a failure of the file of this name: the library's
/// copy tells a full disk as a fault of input and output.
class OpenFile {
  public:
    OpenFile(int id, std::string name) : id_(id), name_(std::move(name)) { check(id_); }
    ~OpenFile() { ::close(id_); }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    [[nodiscard]] struct stat status() const {
        struct stat found {};
        check(fstat(id_, &found));
        return found;
    }
    [[nodiscard]] std::size_t read_some(std::span<char> bytes) const {
        return counted(read(id_, bytes.data(), bytes.size()));
    }
    void write_all(std::span<const char> bytes) const {
        while (!bytes.empty()) {
            bytes = bytes.subspan(counted(write(id_, bytes.data(), bytes.size())));
        }
    }
    /// A memory stick's file system may know no permissions and keeps its own.
    void set_permissions(mode_t mode) const {
        check(fchmod(id_, mode) == 0 || errno == EPERM || errno == EOPNOTSUPP ? 0 : -1);
    }
    /// On the disk, whatever happens next. A file system that knows no such call is believed.
    void synchronise() const { check(fsync(id_) == 0 || errno == EINVAL || errno == EOPNOTSUPP ? 0 : -1); }
    /// Some file systems tell only here that the bytes did not arrive.
    void close() { check(::close(std::exchange(id_, -1))); }

  private:
    void check(ssize_t result) const {
        if (result < 0) {
            fail(errno, name_);
        }
    }
    [[nodiscard]] std::size_t counted(ssize_t result) const {
        check(result);
        return static_cast<std::size_t>(result);
    }

    int id_;
    std::string name_;
};

/// A new file in the folder of the target, under a name that was nobody's. Removed unless it took the target's place.
class Part {
  public:
    Part(const fs::path& target, const std::string& name)
        : target_(target),
          name_(name),
          path_(target.parent_path() / ".gullymark_XXXXXX"),
          file_(mkostemp(path_.data(), O_CLOEXEC), name) {}
    ~Part() {
        if (!placed_) {
            unlink(path_.c_str());
        }
    }
    Part(const Part&) = delete;
    Part& operator=(const Part&) = delete;

    void fill_from(const OpenFile& source, mode_t permissions) {
        std::array<char, 65536> bytes{};
        while (const auto count = source.read_some(bytes)) {
            file_.write_all(std::span(bytes).first(count));
        }
        finish(permissions);
    }
    void fill_with(std::string_view bytes, mode_t permissions) {
        file_.write_all(std::span(bytes.data(), bytes.size()));
        finish(permissions);
    }
    void finish(mode_t permissions) {
        file_.set_permissions(permissions);
        file_.synchronise();
        file_.close();
    }
    void synchronise_folder() const {
        const std::string folder = target_.parent_path().string();
        OpenFile(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC), folder).synchronise();
    }
    void take_place() {
        if (rename(path_.c_str(), target_.c_str()) != 0) {
            fail(errno, name_);
        }
        placed_ = true;
        synchronise_folder();
    }

  private:
    fs::path target_;
    std::string name_;  // of the target, as it was given
    std::string path_;
    OpenFile file_;
    bool placed_ = false;
};

/// The permissions of the file that is replaced, else of the source; the owner can write.
mode_t permissions_of_copy(const std::string& target, const struct stat& source) {
    struct stat old {};
    if (stat(target.c_str(), &old) != 0) {
        if (errno != ENOENT) {
            fail(errno, target);
        }
        old = source;
    } else if (old.st_dev == source.st_dev && old.st_ino == source.st_ino) {
        throw Failure("They are the same file: " + target);
    }
    check_kind(old.st_mode, target);
    return (old.st_mode & (S_IRWXU | S_IRWXG | S_IRWXO)) | S_IWUSR;
}

}  // namespace

bool file_exists(const std::string& path) {
    std::error_code error;
    const auto status = std::filesystem::status(path, error);
    return !error && std::filesystem::exists(status) && !std::filesystem::is_directory(status);
}

void copy_file(const std::string& source, const std::string& target,
               const std::function<void(const std::string& end)>& before_exchange) {
    const OpenFile from(open(source.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC), source);
    check_kind(from.status().st_mode, source);
    const mode_t permissions = permissions_of_copy(target, from.status());
    const fs::path end = end_of_links(target);
    Part part(end, target);
    part.fill_from(from, permissions);
    if (before_exchange) {
        before_exchange(end.string());
        part.synchronise_folder();
    }
    part.take_place();
}

void replace_file(const std::string& target, std::string_view bytes) {
    struct stat old {};
    mode_t permissions = S_IRUSR | S_IWUSR | S_IRGRP | S_IROTH;
    if (stat(target.c_str(), &old) == 0) {
        check_kind(old.st_mode, target);
        permissions = (old.st_mode & (S_IRWXU | S_IRWXG | S_IRWXO)) | S_IWUSR;
    } else if (errno != ENOENT) {
        fail(errno, target);
    }
    Part part(end_of_links(target), target);
    part.fill_with(bytes, permissions);
    part.take_place();
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
