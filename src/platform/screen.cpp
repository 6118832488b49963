#include "platform/screen.h"

#include <algorithm>

#include "platform/outside.h"

namespace gullymark::platform {

bool CheckListValue(std::string& text, const std::vector<std::string>& entries) {
    const bool listed =
        std::ranges::any_of(entries, [&](const auto& entry) { return entry.starts_with(text); });
    if (listed || entries.empty()) {
        return false;
    }
    tell("Value not present in the list... Please enter a valid value..");
    text = entries.front();
    return true;
}

}  // namespace gullymark::platform
