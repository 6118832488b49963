#pragma once

#include <array>
#include <optional>
#include <string>

#include "engine/inlet_record.h"
#include "section/section.h"

namespace gullymark::section {

/// Watches one record and tells whether its results belong to its inputs. Its first change tells that something was
/// written; this tells whether it is something that the water depends on: a page that empties the fields of other kinds, a
/// format of the same number or a station leave the water as it was.
class WaterWatch {
  public:
    /// The state of the water now. To be called after each event, so that it sees the record before its first change.
    Water look(const engine::InletRecord& record);

  private:
    [[nodiscard]] bool same_inputs(const engine::InletRecord& record) const;

    using Texts = std::array<std::optional<std::string>, engine::column_count>;
    std::optional<Texts> unchanged_;  // as the record was loaded, solved or saved
};

}  // namespace gullymark::section
