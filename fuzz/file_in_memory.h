#pragma once

#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include "platform/files.h"

namespace gullymark::fuzz {

/// A folder of this process in memory with one project file in it; it goes with the process.
class FileInMemory {
  public:
    FileInMemory() : folder_("/dev/shm/gullymark_fuzz_" + std::to_string(getpid())) {
        std::filesystem::create_directories(folder_);
    }
    ~FileInMemory() {
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }
    FileInMemory(const FileInMemory&) = delete;
    FileInMemory& operator=(const FileInMemory&) = delete;

    [[nodiscard]] std::string path() const { return folder_ + "/road.gmk"; }

    void copy_template() const { platform::copy_file(GULLYMARK_BINARY_DIR "/bin/GullymarkAL10.rdb", path()); }
    /// Alone in its folder, without what an engine left beside the one before.
    void write(std::string_view bytes) const {
        for (const auto& entry : std::filesystem::directory_iterator(folder_)) {
            std::filesystem::remove_all(entry);
        }
        std::ofstream(path(), std::ios::binary) << bytes;
    }

  private:
    std::string folder_;
};

}  // namespace gullymark::fuzz
