#include "shell/binding/section_painter.h"

#include <algorithm>
#include <array>
#include <string>

#include <gtest/gtest.h>
#include <QImage>
#include <QPainter>

#include "engine/inlet_record.h"
#include "engine/unit_constants.h"
#include "shell/binding/contrast.h"
#include "shell/binding/section_layout.h"
#include "tools/case_table.h"

namespace gullymark::shell {
namespace {

using engine::Column;

engine::InletRecord curb_inlet(const char* spread) {
    engine::UnitSystem = "ENGLISH";
    engine::InletRecord record;
    for (const auto& [column, text] :
         {std::pair{Column::INLET_TYPE, "Curb Inlet"}, std::pair{Column::INLET_LOCATION, "CONTINUOUS GRADE"},
          std::pair{Column::CURB_HEIGHT, "6.0"}, std::pair{Column::ALLOWABLE_SPREAD, "8.0"},
          std::pair{Column::LONGSLOPE, "0.0100"}, std::pair{Column::PAVXSLOPE, "0.0208"},
          std::pair{Column::GUTWIDTH, "2"}, std::pair{Column::GUTXSLOPE, "0.0833"},
          std::pair{Column::INLETXSLOPE, "0.3333"}, std::pair{Column::LOCDEPWIDTH, "2"},
          std::pair{Column::OPENSPREAD, spread}, std::pair{Column::CURBDEPTH, "4.048"}}) {
        record.load(column, text);
    }
    return record;
}

QFont small_font() {
    QFont font;
    font.setPixelSize(12);
    return font;
}

QImage painted(const section::Section& section, QSize size, const SectionColors& colors) {
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(Qt::magenta);
    QPainter painter(&picture);
    painter.setFont(small_font());
    paint_section(painter, picture.rect(), section, colors);
    return picture;
}

QImage painted_spread(const char* spread, QSize size, section::Water water = section::Water::solved) {
    return painted(section::draw_section(curb_inlet(spread), water), size, section_colors_on_paper());
}

bool is_red(QRgb pixel) {
    return qRed(pixel) > qBlue(pixel) + 60 && qRed(pixel) > qGreen(pixel) + 60;
}

bool is_surface_blue(QRgb pixel) {
    return qBlue(pixel) > qRed(pixel) + 90 && qRed(pixel) < 120;
}

int count(const QImage& picture, bool (*is)(QRgb)) {
    int found = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            found += is(picture.pixel(x, y)) ? 1 : 0;
        }
    }
    return found;
}

/// The first and the last column of a row that a color is in.
std::pair<int, int> reach(const QImage& picture, int row, bool (*is)(QRgb)) {
    std::pair<int, int> columns{picture.width(), -1};
    for (int x = 0; x < picture.width(); ++x) {
        if (is(picture.pixel(x, row))) {
            columns = {std::min(columns.first, x), std::max(columns.second, x)};
        }
    }
    return columns;
}

/// The row with the longest blue line: the level of the water.
int level_row(const QImage& picture) {
    int best = 0;
    int longest = 0;
    for (int y = 0; y < picture.height(); ++y) {
        const auto [first, last] = reach(picture, y, is_surface_blue);
        if (last - first > longest) {
            longest = last - first;
            best = y;
        }
    }
    return best;
}

class SectionPainter : public testing::TestWithParam<QSize> {};

TEST_P(SectionPainter, EndsTheWaterAtItsSpreadToThePixel) {
    const auto section = section::draw_section(curb_inlet("10.209"), section::Water::solved);
    const QImage picture = painted(section, GetParam(), section_colors_on_paper());
    const auto [face, edge] = reach(picture, level_row(picture), is_surface_blue);
    // By hand: a picture as wide as this one shows from x to x of the view in one scale.
    const PlacedSection placed =
        place_section(QRectF(QPointF(), QSizeF(GetParam())), section, QFontMetricsF(small_font()));
    const PlacedView& view = placed.views.front();
    const double scale = view.drawing.width() / (view.view->high.x - view.view->low.x);
    const double curb = view.drawing.left() - view.view->low.x * scale;
    EXPECT_NEAR(face, curb, 1);
    EXPECT_NEAR(edge + 1, curb + 10.209 * scale, 1);
    EXPECT_GT(view.drawing.width(), GetParam().width() * 0.5);
    // What is red begins at the allowable spread.
    const int row = level_row(picture) + std::max(2, static_cast<int>(scale / 12));
    const auto [first_red, last_red] = reach(picture, row, is_red);
    EXPECT_NEAR(first_red, curb + 8.0 * scale, 2);
    EXPECT_LE(last_red, curb + 10.209 * scale + 1);
    EXPECT_NEAR((10.209 - 8.0) * scale, edge + 1 - first_red, 3);
}

INSTANTIATE_TEST_SUITE_P(Widths, SectionPainter, testing::Values(QSize(400, 240), QSize(1600, 700)));

TEST(SectionPicture, HasNoRedAtTheAllowableSpreadAndRedJustBeyond) {
    EXPECT_EQ(count(painted_spread("8.000", {620, 300}), is_red), 0);
    EXPECT_GT(count(painted_spread("8.001", {620, 300}), is_red), 20);
    EXPECT_GT(count(painted_spread("10.209", {620, 300}), is_red),
              count(painted_spread("8.001", {620, 300}), is_red) + 50);
}

TEST(SectionPicture, HatchesWaterThatIsNotSolved) {
    const int solved = count(painted_spread("7.000", {620, 300}), is_surface_blue);
    const int unsolved =
        count(painted_spread("7.000", {620, 300}, section::Water::unsolved), is_surface_blue);
    EXPECT_GT(unsolved, solved + 200);
}

TEST(SectionPicture, HatchesWhatLiesBeyondInAnotherColorThanItsGround) {
    const QImage picture = painted_spread("10.209", {1600, 700});
    const auto colors = section_colors_on_paper();
    int plain = 0;
    int lines = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            plain += picture.pixel(x, y) == colors.beyond.rgb() ? 1 : 0;
            lines += picture.pixel(x, y) == colors.alarm.rgb() ? 1 : 0;
        }
    }
    EXPECT_GT(plain, 50);
    EXPECT_GT(lines, 20);
}

TEST(SectionPicture, StaysInItsAreaAndLeavesThePainterAsItWas) {
    QImage picture(600, 400, QImage::Format_RGB32);
    picture.fill(Qt::magenta);
    QPainter painter(&picture);
    painter.setFont(small_font());
    painter.setPen(Qt::green);
    const QRect area(100, 80, 400, 240);
    paint_section(painter, area, section::draw_section(curb_inlet("10.209"), section::Water::solved),
                  section_colors_on_paper());
    EXPECT_EQ(painter.pen().color(), QColor(Qt::green));
    EXPECT_FALSE(painter.hasClipping());
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (!area.contains(x, y)) {
                ASSERT_EQ(picture.pixelColor(x, y), QColor(Qt::magenta)) << x << ' ' << y;
            }
        }
    }
}

TEST(SectionPicture, StandsOutOnLightAndOnDark) {
    for (const auto& [base, text] : {std::pair{0xffffffff, 0xff000000}, std::pair{0xff2a2a2a, 0xffffffff},
                                     std::pair{0xff141618, 0xfffcfcfc}}) {
        QPalette palette;
        palette.setColor(QPalette::Base, QColor(static_cast<QRgb>(base)));
        palette.setColor(QPalette::Text, QColor(static_cast<QRgb>(text)));
        const SectionColors colors = section_colors(palette);
        EXPECT_GE(contrast(colors.ink, colors.paper), text_contrast);
        EXPECT_GE(contrast(colors.alarm, colors.paper), text_contrast);
        EXPECT_GE(contrast(colors.alarm, colors.beyond), icon_contrast);
        EXPECT_GE(contrast(colors.surface, colors.paper), icon_contrast);
        EXPECT_GE(contrast(colors.surface, colors.water), icon_contrast);
        EXPECT_GE(contrast(colors.metal, colors.paper), icon_contrast);
        EXPECT_GE(contrast(colors.faint, colors.paper), icon_contrast);
    }
}

std::vector<const PlacedText*> texts_of(const PlacedSection& placed) {
    std::vector<const PlacedText*> texts;
    for (const PlacedView& view : placed.views) {
        for (const PlacedText& line : view.title) {
            texts.push_back(&line);
        }
        for (const auto& dimension : view.dimensions) {
            texts.push_back(&dimension.label);
        }
        for (const auto& mark : view.marks) {
            texts.push_back(&mark.label);
        }
    }
    for (const PlacedText& note : placed.notes) {
        texts.push_back(&note);
    }
    std::erase_if(texts, [](const PlacedText* text) { return text->text.isEmpty(); });
    return texts;
}

void expect_texts_apart(const PlacedSection& placed, const QRectF& area) {
    const auto texts = texts_of(placed);
    for (std::size_t i = 0; i < texts.size(); ++i) {
        EXPECT_TRUE(area.adjusted(-1, -1, 1, 1).contains(texts[i]->box))
            << texts[i]->text.toStdString() << " is cut";
        for (std::size_t j = 0; j < i; ++j) {
            EXPECT_FALSE(
                texts[i]->box.adjusted(1, 1, -1, -1).intersects(texts[j]->box.adjusted(1, 1, -1, -1)))
                << texts[i]->text.toStdString() << " lies over " << texts[j]->text.toStdString();
        }
    }
}

class SectionTexts : public testing::TestWithParam<const char*> {};

TEST_P(SectionTexts, NeverCoverEachOtherAndAreNeverCut) {
    const QFontMetricsF font(small_font());
    const auto table = cases::read_table(std::string(GULLYMARK_TEST_DIR) + "/cases/" + GetParam());
    for (std::size_t i = 0; i < table.rows.size(); i += i < 20 ? 1 : 7) {
        cases::solve_row(table, table.rows[i]);
        engine::open_inlet.load(Column::CURB_HEIGHT, engine::by_units("6.0", "150"));
        const auto section = section::draw_section(engine::open_inlet, section::Water::unsolved);
        for (const QSizeF& size : {QSizeF(400, 220), QSizeF(420, 420), QSizeF(620, 300), QSizeF(1000, 220),
                                   QSizeF(1600, 700), QSizeF(260, 120)}) {
            const QRectF area(QPointF(), size);
            const testing::ScopedTrace trace(__FILE__, __LINE__,
                                             "line " + std::to_string(i + 2) + ", " +
                                                 std::to_string(static_cast<int>(size.width())) + " wide");
            expect_texts_apart(place_section(area, section, font), area);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Tables, SectionTexts,
                         testing::Values("solves_help.tsv", "solves_ordinary.tsv", "solves_boundary.tsv",
                                         "solves_unreadable.tsv"));

TEST(SectionPicture, TellsFlowAndSlopeOfBothApproachesUncutOnThePages) {
    const QFontMetricsF font(small_font());
    const auto table = cases::read_table(GULLYMARK_TEST_DIR "/cases/solves_help.tsv");
    for (const auto& row : table.rows) {
        cases::solve_row(table, row);
        const auto section = section::draw_section(engine::open_inlet, section::Water::solved);
        for (const QSizeF& size : {QSizeF(660, 210), QSizeF(470, 280), QSizeF(375, 330), QSizeF(640, 320)}) {
            const auto placed = place_section(QRectF(QPointF(), size), section, font);
            for (const PlacedText* text : texts_of(placed)) {
                EXPECT_FALSE(text->text.endsWith(QChar(0x2026))) << text->text.toStdString();
            }
        }
    }
}

TEST(SectionPicture, IsPaintedAtEverySize) {
    const auto section = section::draw_section(curb_inlet("10.209"), section::Water::solved);
    for (const QSize size : {QSize(1, 1), QSize(5, 400), QSize(400, 5), QSize(40, 40), QSize(3000, 60)}) {
        EXPECT_EQ(painted(section, size, section_colors_on_paper()).size(), size);
    }
}

}  // namespace
}  // namespace gullymark::shell
