#include "shell/binding/turn.h"

#include <exception>
#include <utility>
#include <vector>

#include <QWidget>

#include "platform/outside.h"

namespace gullymark::shell {
namespace {

struct Turns {
    std::vector<std::function<void()>> views;
    bool showing = false;
    int modal_rounds = 0;
};

Turns turns;

}  // namespace

void add_view(std::function<void()> show) {
    turns.views.push_back(std::move(show));
}

void forget_views() {
    turns.views.clear();
}

void show_all() {
    if (turns.showing) {
        return;
    }
    turns.showing = true;
    for (const auto& show : turns.views) {
        show();
    }
    turns.showing = false;
}

bool showing() {
    return turns.showing;
}

void handle(const std::function<void()>& handler) {
    if (turns.showing || !handler) {
        return;
    }
    try {
        handler();
    } catch (const std::exception& failure) {
        platform::tell(failure.what());
    }
    show_all();
}

void come_to_front(QWidget& window, int shows, int& shows_before) {
    if (std::exchange(shows_before, shows) != shows && window.isVisible()) {
        window.raise();
        window.activateWindow();
    }
}

int modal_rounds() {
    return turns.modal_rounds;
}

void count_modal_round() {
    ++turns.modal_rounds;
}

}  // namespace gullymark::shell
