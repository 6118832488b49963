// Runs a fuzz target without a fuzzer, as a test: every file of a corpus, then as many inputs made of them by changes
// that depend on nothing but the numbers given.
//
//   replay_NAME CORPUS INPUTS

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "target.h"

namespace {

void run(const std::string& input) {
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
}

std::vector<std::string> read_corpus(const std::string& folder) {
    std::vector<std::filesystem::path> paths;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        paths.push_back(entry.path());
    }
    std::ranges::sort(paths);
    std::vector<std::string> inputs;
    for (const auto& path : paths) {
        std::ostringstream input;
        input << std::ifstream(path, std::ios::binary).rdbuf();
        inputs.push_back(input.str());
    }
    return inputs;
}

/// A byte changed, a stretch left out, or a stretch of another input put in.
std::string changed(std::string input, const std::string& other, std::mt19937& random) {
    const auto place = [&](const std::string& text) { return text.empty() ? 0U : random() % text.size(); };
    const auto at = place(input);
    switch (random() % 3) {
        case 0:
            if (!input.empty()) {
                input[at] = static_cast<char>(random());
            }
            break;
        case 1:
            input.erase(at, random() % 8);
            break;
        default:
            input.insert(at, other, place(other), random() % 32);
    }
    return input;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: replay CORPUS INPUTS\n";
        return 2;
    }
    const auto corpus = read_corpus(argv[1]);
    if (corpus.empty()) {
        std::cerr << "there is nothing in " << argv[1] << '\n';
        return 2;
    }
    std::ranges::for_each(corpus, run);
    std::mt19937 random(1);
    const int inputs = std::stoi(argv[2]);
    for (int i = 0; i < inputs; ++i) {
        std::string input = corpus[random() % corpus.size()];
        for (auto changes = 1 + random() % 4; changes > 0; --changes) {
            input = changed(std::move(input), corpus[random() % corpus.size()], random);
        }
        run(input);
    }
    std::cout << corpus.size() << " files and " << inputs << " changed ones\n";
    return 0;
}
