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
    using platform::ignore_failure;
    ignore_failure([] { call(windows.show_splash); });
    ignore_failure(wait_for_splash);
    ignore_failure([] { call(windows.unload_splash); });
    ignore_failure(load_main_window);
    frmsoftwaremain.visible = true;
}

}  // namespace gullymark::store
