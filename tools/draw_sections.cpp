// Draws the section of each inlet of tables of solved inlets, as the windows show it: for the help, and to look at.
//
//     draw_sections [--size=620x300] [--dark] [--unsolved] FOLDER TABLE...
//
// writes FOLDER/TABLE_LINE.png for every row, and tells what it shows.

#include <filesystem>
#include <iostream>
#include <string>

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include "engine/inlet_record.h"
#include "engine/unit_constants.h"
#include "section/section.h"
#include "shell/binding/section_painter.h"
#include "tools/case_table.h"

namespace {

using namespace gullymark;

struct Wanted {
    QSize size{620, 300};
    bool dark = false;
    bool unsolved = false;
    std::filesystem::path folder;
};

shell::SectionColors colors_of(const Wanted& wanted) {
    if (!wanted.dark) {
        return shell::section_colors_on_paper();
    }
    QPalette palette;
    palette.setColor(QPalette::Base, QColor(0x2a, 0x2a, 0x2a));
    palette.setColor(QPalette::Text, Qt::white);
    return shell::section_colors(palette);
}

bool draw(const Wanted& wanted, const std::string& name) {
    QImage picture(wanted.size, QImage::Format_RGB32);
    picture.fill(colors_of(wanted).paper);
    QPainter painter(&picture);
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(12);
    painter.setFont(font);
    const auto section = section::draw_section(
        engine::open_inlet, wanted.unsolved ? section::Water::unsolved : section::Water::solved);
    shell::paint_section(painter, QRectF(picture.rect()).adjusted(4, 4, -4, -4), section, colors_of(wanted));
    painter.end();
    std::cout << name << ": " << section.sentence << '\n';
    return picture.save(QString::fromStdString((wanted.folder / (name + ".png")).string()));
}

bool draw_table(const Wanted& wanted, const std::string& path) {
    const auto table = cases::read_table(path);
    const std::string stem = std::filesystem::path(path).stem().string();
    int line = 1;
    for (const auto& row : table.rows) {
        ++line;
        cases::solve_row(table, row);
        if (engine::open_inlet.text(engine::Column::CURB_HEIGHT).empty()) {
            engine::open_inlet.load(engine::Column::CURB_HEIGHT,
                                    engine::by_units("6.0", "150"));  // as new inlets have
        }
        if (!draw(wanted, stem + '_' + std::to_string(line))) {
            return false;
        }
    }
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    Wanted wanted;
    for (const QString& argument : QGuiApplication::arguments().mid(1)) {
        if (argument == "--dark") {
            wanted.dark = true;
        } else if (argument == "--unsolved") {
            wanted.unsolved = true;
        } else if (argument.startsWith("--size=")) {
            const auto sides = argument.mid(7).split('x');
            wanted.size = {sides.value(0).toInt(), sides.value(1).toInt()};
        } else if (wanted.folder.empty()) {
            wanted.folder = argument.toStdString();
        } else if (!draw_table(wanted, argument.toStdString())) {
            std::cerr << "cannot write into " << wanted.folder.string() << '\n';
            return 1;
        }
    }
    return 0;
}
