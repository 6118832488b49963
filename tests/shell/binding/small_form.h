#pragma once

#include <memory>
#include <string>
#include <vector>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include "shell/binding/binder.h"
#include "shell/binding/turn.h"
#include "shell/robot.h"

namespace gullymark::testing_support {

/// A window with one widget of each kind, and a logic that writes down what it hears.
struct SmallForm {
    platform::Field number{.text = "1"};
    platform::Field kind{.text = "Curb", .entries = {"Curb", "Grate"}};
    platform::Field override_box;
    platform::Field solve;
    platform::Field unit{.caption = "ft"};
    platform::Field pages;
    int page = 0;
    bool stays = false;  // the answer of number's leave
    std::vector<std::string> heard;

    QWidget window;
    QLineEdit* number_line = add<QLineEdit>("number");
    QComboBox* kind_list = add<QComboBox>("kind");
    QCheckBox* override_check = add<QCheckBox>("override_box");
    QPushButton* solve_button = add<QPushButton>("solve");
    QLabel* unit_label = add<QLabel>("unit_1");
    QLabel* other_unit_label = add<QLabel>("unit_2");
    QTabWidget* tabs = add<QTabWidget>("pages");
    shell::Binder* binder = nullptr;

    SmallForm() {
        window.setObjectName("small_form");
        kind_list->setEditable(true);
        tabs->addTab(new QWidget, "one");
        tabs->addTab(new QWidget, "two");
        for (int i = 0; i < window.layout()->count(); ++i) {
            window.layout()->itemAt(i)->widget()->setFixedHeight(40);
        }
        tabs->setFixedHeight(80);
    }
    ~SmallForm() { shell::forget_views(); }
    SmallForm(const SmallForm&) = delete;
    SmallForm& operator=(const SmallForm&) = delete;

    /// What the logic has for the window; a test changes it before `bind`.
    std::vector<shell::ScreenItem> items() {
        const auto hear = [this](const std::string& what) { heard.push_back(what); };
        return {
            {.name = "number",
             .field = &number,
             .limit = 8,
             .edited = [this](const std::string& text) { number.text = text; },
             .entered = [hear] { hear("enter number"); },
             .leave =
                 [this, hear] {
                     hear("leave number");
                     return !stays;
                 }},
            {.name = "kind",
             .field = &kind,
             .edited = [this](const std::string& text) { kind.text = text; },
             .entered = [hear] { hear("enter kind"); },
             .leave =
                 [hear] {
                     hear("leave kind");
                     return true;
                 }},
            {.name = "override_box",
             .field = &override_box,
             .clicked = [this] { override_box.checked ^= true; }},
            {.name = "solve", .field = &solve, .clicked = [hear] { hear("solve"); }},
            {.name = "unit", .field = &unit, .captioned = true},
            {.name = "pages",
             .field = &pages,
             .page = [this] { return page; },
             .turned =
                 [this, hear](int turned) {
                     page = turned;
                     hear("page " + std::to_string(turned));
                 }},
        };
    }

    void bind(std::vector<shell::ScreenItem> items) {
        binder = new shell::Binder(window, std::move(items));
        shell::show_all();
    }

    /// Binds, shows the window and starts with an empty list of what was heard.
    void open() {
        bind(items());
        activate(window);
        heard.clear();
    }

    [[nodiscard]] QWidget* second_tab() const { return tabs->tabBar(); }
    void click_second_tab() const { click(*tabs->tabBar(), tabs->tabBar()->tabRect(1).center()); }

  private:
    template <class Widget>
    Widget* add(const char* name) {
        if (window.layout() == nullptr) {
            new QVBoxLayout(&window);
        }
        auto* widget = new Widget(&window);
        widget->setObjectName(name);
        window.layout()->addWidget(widget);
        return widget;
    }
};

}  // namespace gullymark::testing_support
