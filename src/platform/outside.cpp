#include "platform/outside.h"

#include <ctime>

namespace gullymark::platform {

Outside outside;

void tell(const std::string& text, BoxKind kind, const std::string& title) {
    if (outside.show_box) {
        outside.show_box({kind, text, title});
    }
}

bool ask(const std::string& text, BoxKind kind, const std::string& title, Answer on_enter) {
    return outside.show_box && outside.show_box({kind, text, title, on_enter}) == Answer::yes;
}

void show_wait_pointer(bool waiting) {
    if (outside.show_wait_pointer) {
        outside.show_wait_pointer(waiting);
    }
}

void keep_painting() {
    if (outside.keep_painting) {
        outside.keep_painting();
    }
}

void beep() {
    if (outside.beep) {
        outside.beep();
    }
}

std::chrono::year_month_day today() {
    if (outside.today) {
        return outside.today();
    }
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return {std::chrono::year(local.tm_year + 1900),
            std::chrono::month(static_cast<unsigned>(local.tm_mon) + 1),
            std::chrono::day(static_cast<unsigned>(local.tm_mday))};
}

}  // namespace gullymark::platform
