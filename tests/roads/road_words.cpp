#include "roads/road_words.h"

#include <algorithm>
#include <stdexcept>

namespace gullymark::roads {

std::optional<Texts> fit(std::string_view pattern, const std::vector<Word>& words) {
    Texts texts;
    std::size_t at = 0;
    for (const Word& part : cut_words(std::string(pattern))) {
        if (part.text == "...") {
            for (; at < words.size(); ++at) {
                texts.push_back(words[at].text);
            }
            return texts;
        }
        if (at == words.size()) {
            return std::nullopt;
        }
        const Word& word = words[at++];
        if (part.text == "$") {
            texts.push_back(word.text);
        } else if (word != part) {
            return std::nullopt;
        }
    }
    return at == words.size() ? std::optional(texts) : std::nullopt;
}

std::string join(const Texts& texts, std::string_view between, std::size_t from) {
    std::string joined;
    for (std::size_t i = from; i < texts.size(); ++i) {
        joined += i == from ? "" : between;
        joined += texts[i];
    }
    return joined;
}

int page_named(const std::string& name) {
    const auto* const found = std::find(page_names.begin(), page_names.end(), name);
    if (found == page_names.end()) {
        throw std::runtime_error("no page is called " + name);
    }
    return static_cast<int>(found - page_names.begin());
}

}  // namespace gullymark::roads
