#pragma once

#include <array>
#include <optional>
#include <string>

#include <QWidget>

#include "engine/inlet_record.h"
#include "section/section.h"

namespace gullymark::shell {

/// The section of an inlet on a window, drawn to scale from a record. It takes no focus; a screen reader finds what it
/// shows as a sentence.
class SectionPicture : public QWidget {
  public:
    explicit SectionPicture(QWidget* parent = nullptr);

    /// The record that is drawn from now on; it must outlive the picture.
    void draw(const engine::InletRecord& record) { record_ = &record; }

    /// Draws the record anew where a text, the state of its water or the units differ from what is drawn; part of
    /// `show_all`. A picture that nobody sees waits until it is shown.
    void follow(section::Water water);

    /// What is drawn.
    [[nodiscard]] const section::Section& drawn() const { return drawn_; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    /// What a drawing was made from.
    struct Source {
        std::array<std::optional<std::string>, engine::column_count> texts;
        section::Water water = section::Water::none;
        std::string units;

        bool operator==(const Source&) const = default;
    };

    [[nodiscard]] bool is_up_to_date() const;
    void draw_anew();

    const engine::InletRecord* record_ = nullptr;
    section::Water water_ = section::Water::none;
    std::optional<Source> source_;
    section::Section drawn_;
};

}  // namespace gullymark::shell
