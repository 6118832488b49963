#include "platform/office/pipes.h"

#include <dirent.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <ctime>
#include <filesystem>
#include <functional>
#include <random>
#include <sstream>

namespace gullymark::office {
namespace {

namespace fs = std::filesystem;

constexpr std::array<const char*, 2> folders_of_pipes = {"/tmp", "/var/tmp"};
// A pipe that is being made does not listen yet.
constexpr std::time_t seconds_to_listen = 60;

// A test's profile is a folder of its own, and its office listens under a name of its own.
std::string prefix(const OfficeChoice& choice) {
    return choice.profile.empty()
               ? "gullymark_office_"
               : "gullymark_profile_" + std::to_string(std::hash<std::string>{}(choice.profile)) + "_";
}

enum class Listener { none, one, unknown };

Listener listener_of(const std::string& path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.size() >= sizeof address.sun_path) {
        return Listener::unknown;
    }
    path.copy(address.sun_path, path.size());
    const int probe = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    const int result = connect(probe, reinterpret_cast<const sockaddr*>(&address), sizeof address);
    const int error = result == 0 ? 0 : errno;
    close(probe);
    return error == 0 ? Listener::one : error == ECONNREFUSED ? Listener::none : Listener::unknown;
}

}  // namespace

std::string new_pipe_name(const OfficeChoice& choice) {
    std::random_device random;
    std::ostringstream name;
    name << prefix(choice) << std::hex << random() << random();
    return name.str();
}

std::vector<std::string> listening_pipes(const OfficeChoice& choice) {
    const std::string before_name = "OSL_PIPE_" + std::to_string(getuid()) + "_";
    std::vector<std::string> names;
    for (const char* folder : folders_of_pipes) {
        std::error_code error;
        for (const auto& entry : fs::directory_iterator(folder, error)) {
            const std::string file = entry.path().filename().string();
            struct stat found {};
            if (!file.starts_with(before_name + prefix(choice)) || lstat(entry.path().c_str(), &found) != 0 ||
                found.st_uid != getuid() || !S_ISSOCK(found.st_mode)) {
                continue;
            }
            const Listener listener = listener_of(entry.path().string());
            if (listener == Listener::one) {
                names.push_back(file.substr(before_name.size()));
            } else if (listener == Listener::none &&
                       found.st_mtime + seconds_to_listen < std::time(nullptr)) {
                unlink(entry.path().c_str());
            }
        }
    }
    return names;
}

}  // namespace gullymark::office
