#pragma once

#include <string>
#include <vector>

#include <QAbstractButton>
#include <QAction>
#include <QMainWindow>
#include <QTableView>
#include <QWidget>

/// What a user sees of a window: read from the widgets, never from the logic behind them.
namespace gullymark::roads {

std::string text_in(const QWidget& field);
/// It can be typed in, picked or clicked.
bool is_on(const QWidget& field);
bool is_checked(const QWidget& field);
/// The page that it stands on shows it.
bool is_shown(const QWidget& field);
/// Of a label, a frame, or all labels of a unit.
std::string caption_of(const QWidget& window, const std::string& name);
std::vector<std::string> entries_of(const QWidget& field);

/// The command of the menu that bears this caption; throws std::runtime_error where none does.
QAction& command_of(const QMainWindow& window, const std::string& caption);
/// Without the mark of its letter.
std::string plain(QString caption);
/// The visible button that bears this caption; throws std::runtime_error where none does.
QAbstractButton& button_of(const QWidget& window, const std::string& caption);

/// The field that the user is in; empty where he is in none.
std::string focus_in(const QWidget& window);
int page_of(const QWidget& window);
/// A panel of a status bar.
std::string panel_of(const QWidget& window, const std::string& bar, int panel);

/// The grid of the workspace, or the rows of the listing.
QTableView& rows_of(const QWidget& window);
/// Of these rows, from 1; 0 for none.
int marked_row(const QWidget& window);

/// What the section in front says of its water: "solved", "not solved" or "no results"; empty without a section.
std::string said_of_the_water(const QWidget& window);

}  // namespace gullymark::roads
