#pragma once

#include <string>

#include "roads/road_runner.h"
#include "section/water_watch.h"
#include "support/outside_double.h"

namespace gullymark::roads {

/// The stage on which a road runs without a window: events go to the logic as the shell would hand them on. Its boxes,
/// file dialogs and modal forms ask the road.
class LogicStage {
  public:
    /// Starts the program anew, with its template beside it; the main window is in front.
    LogicStage(Road& road, const std::string& program_folder);
    ~LogicStage();
    LogicStage(const LogicStage&) = delete;
    LogicStage& operator=(const LogicStage&) = delete;

    Stage stage;

  private:
    void ask_the_road();
    void set_deeds();
    void set_sights();

    /// The window in front after a deed: one that came, or what is left when one went.
    template <class Deed>
    bool turn(Deed deed);

    Road& road_;
    testing_support::OutsideDouble outside_;
    std::string front_ = "main";
    section::WaterWatch water_of_form_;
    section::WaterWatch water_of_view_;
};

}  // namespace gullymark::roads
