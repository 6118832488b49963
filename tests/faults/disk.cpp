#include "faults/disk.h"

#include <algorithm>
#include <filesystem>
#include <utility>

#include "faults/site.h"

namespace gullymark::faults {
namespace {

namespace fs = std::filesystem;

constexpr int the_folder = 0;
constexpr std::uint64_t sector = 512;

bool changes_names(CallKind kind) {
    return kind == CallKind::make || kind == CallKind::rename || kind == CallKind::remove;
}

void write_at(std::string& file, std::uint64_t offset, std::string_view bytes) {
    file.resize(std::max<std::size_t>(file.size(), offset + bytes.size()));
    file.replace(offset, bytes.size(), bytes);
}

void write_down(std::string& file, const Change& change) {
    if (change.kind == CallKind::cut) {
        file.resize(change.size);
    } else {
        write_at(file, change.offset, change.bytes);
    }
}

/// How much of what was not synchronised reaches the disk: differs from one failure to the next.
struct Luck {
    std::mt19937& random;
    std::mt19937::result_type kept = random() % 5;  // of four
    std::mt19937::result_type torn = random() % 5;

    [[nodiscard]] bool keeps() const { return random() % 4 < kept; }
    [[nodiscard]] bool tears() const { return random() % 4 < torn; }
};

/// Some sectors of the write are on the disk. The file may have grown for all of them: then it has zeros there.
void write_torn(std::string& file, const Change& change, const Luck& luck) {
    for (std::uint64_t at = 0; at < change.bytes.size();) {
        const auto length = std::min(sector - (change.offset + at) % sector, change.bytes.size() - at);
        if (luck.random() % 2 == 0) {
            write_at(file, change.offset + at, std::string_view(change.bytes).substr(at, length));
        }
        at += length;
    }
    if (luck.random() % 2 == 0) {
        file.resize(std::max<std::size_t>(file.size(), change.offset + change.bytes.size()));
    }
}

void write_by_chance(std::string& file, const Change& change, const Luck& luck) {
    if (luck.keeps()) {
        write_down(file, change);
    } else if (change.kind == CallKind::write && luck.tears()) {
        write_torn(file, change, luck);
    }
}

}  // namespace

Disk::Disk(std::string folder) : folder_(std::move(folder)) {
    for (const auto& entry : fs::directory_iterator(folder_)) {
        before_.names[entry.path().filename()] = ++files_;
        before_.bytes[files_] = bytes_of(entry.path());
    }
    names_ = before_.names;
}

int Disk::file_named(const std::string& name) {
    const auto found = names_.find(name);
    return found == names_.end() ? -1 : found->second;
}

void Disk::change_names(Names& names, const Change& change) {
    if (change.kind == CallKind::make) {
        names[change.name] = change.file;
        return;
    }
    names.erase(change.name);
    if (change.kind == CallKind::rename) {
        names[change.new_name] = change.file;
    }
}

void Disk::note(const SystemCall& call) {
    if (!call.path.starts_with(folder_) || call.kind == CallKind::open || call.kind == CallKind::read) {
        return;
    }
    Change change{.kind = call.kind,
                  .name = fs::path(call.path).filename(),
                  .new_name = fs::path(call.new_path).filename(),
                  .offset = call.offset,
                  .size = call.size,
                  .bytes = std::string(call.bytes)};
    change.file = call.path == folder_ ? the_folder : file_named(change.name);
    if (change.file < 0 && (call.kind == CallKind::remove || call.path.ends_with(" (deleted)"))) {
        return;  // nothing has that name
    }
    if (change.file < 0) {
        // Made by this call, or by one that no name is known of before its first write.
        change.file = ++files_;
        changes_.push_back({.kind = CallKind::make, .file = change.file, .name = change.name});
        change_names(names_, changes_.back());
    }
    if (change.kind == CallKind::make) {
        return;
    }
    changes_.push_back(change);
    if (changes_names(change.kind)) {
        change_names(names_, change);
    }
}

void Disk::fail_power(std::size_t after, std::mt19937& random) const {
    Image image = before_;
    std::map<int, std::vector<const Change*>> loose;  // what was not synchronised; of the folder the names
    for (std::size_t i = 0; i < std::min(after, changes_.size()); ++i) {
        const Change& change = changes_[i];
        if (change.kind != CallKind::sync) {
            loose[changes_names(change.kind) ? the_folder : change.file].push_back(&change);
            continue;
        }
        for (const Change* kept : std::exchange(loose[change.file], {})) {
            change.file == the_folder ? change_names(image.names, *kept)
                                      : write_down(image.bytes[change.file], *kept);
        }
    }
    const Luck luck{random};
    const auto& names = loose[the_folder];
    const auto kept_names = names.empty() ? 0 : random() % (names.size() + 1);
    for (std::size_t i = 0; i < kept_names; ++i) {
        change_names(image.names, *names[i]);
    }
    for (const auto& [name, file] : image.names) {
        for (const Change* change : loose[file]) {
            write_by_chance(image.bytes[file], *change, luck);
        }
    }
    put_back(image);
}

void Disk::kill_writer(std::size_t after) const {
    Image image = before_;
    for (std::size_t i = 0; i < std::min(after + 1, changes_.size()); ++i) {
        Change change = changes_[i];
        if (i == after) {
            if (change.kind != CallKind::write) {
                break;
            }
            change.bytes.resize(change.bytes.size() / 2);
        }
        if (changes_names(change.kind)) {
            change_names(image.names, change);
        } else if (change.kind != CallKind::sync) {
            write_down(image.bytes[change.file], change);
        }
    }
    put_back(image);
}

void Disk::put_back(const Image& image) const {
    for (const auto& entry : fs::directory_iterator(folder_)) {
        fs::remove(entry);
    }
    for (const auto& [name, file] : image.names) {
        const auto bytes = image.bytes.find(file);
        testing_support::write_file(folder_ + "/" + name, bytes == image.bytes.end() ? "" : bytes->second);
    }
}

}  // namespace gullymark::faults
