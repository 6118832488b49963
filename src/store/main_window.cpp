#include "store/main_window.h"

#include "store/project_session.h"

namespace gullymark::store {

MainWindow frmsoftwaremain;

void load_main_window() {
    frmsoftwaremain.message_title = "Tarnel Brook";
    session.workingDirectory.clear();
    session.productName.clear();
    frmsoftwaremain.mnucloseProj.enabled = false;
    session.targetMajorRelease = "1";
    session.targetMinorRelease = "00";
    session.targetReleaseDate = "MAY 2010";
}

}  // namespace gullymark::store
