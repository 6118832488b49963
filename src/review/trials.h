#pragma once

#include <string>
#include <string_view>

#include "engine/inlet_record.h"
#include "engine/step.h"
#include "engine/unit_constants.h"
#include "platform/outside.h"

/// Many solves of one inlet with a few texts changed from one to the next, without a trace.
namespace gullymark::review {

/// While it lives the engine has the inlets open that it tries, in the units of a project, and no box is shown. At its end
/// all is as before: the open inlet and who is told of its changes, DataSolved, units and constants, who looks on.
class Trials {
  public:
    explicit Trials(const std::string& units);
    ~Trials();
    Trials(const Trials&) = delete;
    Trials& operator=(const Trials&) = delete;
    Trials(Trials&&) = delete;
    Trials& operator=(Trials&&) = delete;

    /// From here on a copy of this inlet is tried.
    void open(const engine::InletRecord& inlet);

    static void set(engine::Column column, std::string_view text) { engine::open_inlet.set(column, text); }
    static const std::string& text(engine::Column column) { return engine::open_inlet.text(column); }

    /// The command SOLVE; false where it refuses, and then there are no results.
    bool solve();
    /// What the boxes of the last solve said, a blank between them; empty for none.
    [[nodiscard]] const std::string& told() const { return told_; }

  private:
    engine::InletRecord inlet_;
    bool solved_;
    std::string units_;
    engine::UnitConstants constants_;
    engine::Onlooker onlooker_;
    std::function<platform::Answer(const platform::Box&)> show_box_;
    std::string told_;
};

}  // namespace gullymark::review
