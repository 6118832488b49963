#include "store/start.h"

#include "platform/failure.h"
#include "platform/outside.h"
#include "store/main_window.h"
#include "store/windows.h"

namespace gullymark::store {

void wait_for_splash() {
    const auto& clock = platform::outside.time_of_day;
    if (!clock) {
        return;
    }
    const auto end = static_cast<float>(clock() + 3.0);
    while (!(end <= static_cast<float>(clock()))) {
    }
}

void tarnelbrookmain() {
    const auto try_step = [](auto step) {
        try {
            step();
        } catch (const platform::Failure&) {
            return;
        }
    };
    try_step([] { call(windows.show_splash); });
    try_step(wait_for_splash);
    try_step([] { call(windows.unload_splash); });
    try_step(load_main_window);
    frmsoftwaremain.visible = true;
}

}  // namespace gullymark::store
