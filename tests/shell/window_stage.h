#pragma once

#include <string>

#include "roads/road_runner.h"
#include "running_program.h"

namespace gullymark::roads {

/// The stage on which a road runs on the real windows: every deed is an event of mouse or keyboard, every sight is what
/// a widget shows. Boxes, file dialogs and modal forms ask the road.
class WindowStage {
  public:
    /// On a program that has just begun; the main window is in front.
    WindowStage(Road& road, testing_support::RunningProgram& program);
    ~WindowStage();
    WindowStage(const WindowStage&) = delete;
    WindowStage& operator=(const WindowStage&) = delete;

    Stage stage;

  private:
    void ask_the_road(testing_support::Robot& robot);
    void set_deeds();
    void set_sights();

    /// The window that takes the user's events.
    [[nodiscard]] QWidget& front() const;
    /// Does something there. Then what came is in front, or what is left when one went.
    template <class Deed>
    bool turn(Deed deed);

    Road& road_;
    std::string front_ = "main";  // of the windows that stand beside each other
    int double_click_interval_;   // as it was before
};

}  // namespace gullymark::roads
