#include "store/help.h"

#include "platform/files.h"
#include "platform/outside.h"
#include "store/windows.h"

namespace gullymark::store {

void show_help() {
    if (platform::outside.open_help) {
        platform::outside.open_help(platform::join_path(platform::program_folder(), "GullymarkAL.chm"));
    }
}

void show_about_box() {
    call(windows.show_about_box);
}

}  // namespace gullymark::store
