#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QTableView>
#include <QTextBrowser>

#include "review/review_fixture.h"
#include "shell/review/review_window.h"
#include "shell/review/start_review.h"
#include "shell/robot.h"
#include "support/outside_double.h"
#include "support/project_file.h"

namespace gullymark::testing_support {

inline std::string quoted_sql(std::string text) {
    for (std::size_t at = 0; (at = text.find('\'', at)) != std::string::npos; at += 2) {
        text.insert(at, "'");
    }
    return "'" + text + "'";
}

/// The reviewer's window on a file with the road of ten inlets, which the test changes and saves like a designer.
class ReviewStage : public review::ReviewTest {
  protected:
    void SetUp() override {
        ReviewTest::SetUp();
        shell::prepare_review();
        make_project_file(path);
        save();
        window = std::make_unique<shell::ReviewWindow>();
        activate(*window);
    }
    void TearDown() override {
        window.reset();
        platform::outside = {};
    }

    /// Writes the project of the test into its file, in one transaction.
    void save() { save_in(path); }
    void save_in(const std::string& file) { run_sql(file, save_statements()); }
    [[nodiscard]] std::string save_statements() const {
        std::string sql =
            "BEGIN; DELETE FROM PROJECT; DELETE FROM INLET;"
            "INSERT INTO PROJECT (PROJECT_ID, PROJECT_NAME, COUNTY, STATE, DESIGNER, UNITS) VALUES (" +
            quoted_sql(project.id) + ", " + quoted_sql(project.name) + ", 'Mobile', 'Alabama', 'R. Vane', " +
            quoted_sql(project.units) + ");";
        for (const auto& inlet : project.inlets) {
            std::string columns;
            std::string values;
            for (const auto column : engine::all_columns) {
                if (!inlet.is_null(column)) {
                    columns += (columns.empty() ? "" : ", ") + std::string(engine::column_name(column));
                    values += (values.empty() ? "" : ", ") + quoted_sql(inlet.text(column));
                }
            }
            sql += "INSERT INTO INLET (" + columns + ") VALUES (" + values + ");";
        }
        return sql + "COMMIT;";
    }
    void open() {
        window->open(path);
        settle();
    }

    template <class Widget = QWidget>
    [[nodiscard]] Widget& find(const char* name) const {
        auto* widget = window->findChild<Widget*>(QString::fromLatin1(name));
        if (widget == nullptr) {
            throw std::runtime_error(std::string("the window has no ") + name);
        }
        return *widget;
    }
    [[nodiscard]] QTableView& findings() const { return find<QTableView>("findings"); }
    [[nodiscard]] static std::string cell(const QTableView& table, int row, int column) {
        return table.model()->index(row, column).data().toString().toStdString();
    }
    /// "Wrong L2" for each row.
    [[nodiscard]] std::vector<std::string> shown() const {
        std::vector<std::string> rows;
        for (int row = 0; row < findings().model()->rowCount(); ++row) {
            rows.push_back(cell(findings(), row, 0) + ' ' + cell(findings(), row, 1));
        }
        return rows;
    }
    [[nodiscard]] std::string text(const char* label) const {
        const auto& shown_label = find<QLabel>(label);
        return shown_label.isVisible() ? shown_label.text().toStdString() : "";
    }
    [[nodiscard]] std::string title() const { return window->windowTitle().toStdString(); }
    /// Waits, at most so long, until it is true.
    template <class Condition>
    [[nodiscard]] static bool comes(const Condition& condition, int milliseconds = 1000) {
        return QTest::qWaitFor(condition, milliseconds);
    }

    TempFolder folder;
    std::string path = folder.path("road.gmk");
    std::unique_ptr<shell::ReviewWindow> window;
};

}  // namespace gullymark::testing_support
