#include "platform/outside.h"

namespace gullymark::platform {

Outside outside;

void tell(const std::string& text, BoxKind kind, const std::string& title) {
    if (outside.show_box) {
        outside.show_box({kind, text, title});
    }
}

bool ask(const std::string& text, BoxKind kind, const std::string& title) {
    return outside.show_box && outside.show_box({kind, text, title}) == Answer::yes;
}

void show_wait_pointer(bool waiting) {
    if (outside.show_wait_pointer) {
        outside.show_wait_pointer(waiting);
    }
}

void beep() {
    if (outside.beep) {
        outside.beep();
    }
}

}  // namespace gullymark::platform
