// Every page of the reviewer's window on light and dark palettes, on small screens, and with keys alone.

#include <algorithm>
#include <map>

#include <QAbstractButton>
#include <QAccessible>
#include <QMenuBar>
#include <QScreen>
#include <QTabWidget>

#include "review_windows/review_stage.h"
#include "shell/looks.h"

namespace gullymark::shell {
namespace {

using namespace testing_support;  // NOLINT(google-build-using-namespace): the user of the whole file
using engine::Column;

class ReviewLooksTest : public ReviewStage {
  protected:
    void SetUp() override {
        ReviewStage::SetUp();
        change(
            1,
            {{Column::ALLOWABLE_SPREAD, "3.0"}, {Column::STATION, "10+50"}, {Column::ROADWAY, "Oak Street"}});
        solve(1);
        change(3, {{Column::CARRYOVER1, "0.250"}});
        change(7, {{Column::PREINLET1, "X9"}});
        change(sump, {{Column::GRATEPERCLOG, "0"}});
        save();
    }

    template <class Visit>
    void visit_pages(const Visit& visit) {
        visit("empty");
        open();
        auto& lists = find<QTabWidget>("lists");
        auto& details = find<QTabWidget>("details");
        for (int left = 0; left < lists.count(); ++left) {
            lists.setCurrentIndex(left);
            settle();
            visit(lists.tabText(left).remove('&').toStdString());
        }
        press(*window, Qt::Key_Right, Qt::AltModifier);
        for (int right = 0; right < details.count(); ++right) {
            details.setCurrentIndex(right);
            settle();
            visit(details.tabText(right).remove('&').toStdString());
        }
        lists.setCurrentIndex(0);
        details.setCurrentIndex(0);
        findings().setCurrentIndex(findings().model()->index(1, 0));
        std::filesystem::rename(path, path + ".away");
        EXPECT_TRUE(comes([this] { return !text("warning").empty(); }, 3000));
        visit("warning");
        std::filesystem::rename(path + ".away", path);
        EXPECT_TRUE(comes([this] { return text("warning").empty(); }, 3000));
    }

    /// A new window, which knows nothing of the one before.
    void begin_anew() {
        window = std::make_unique<ReviewWindow>();
        activate(*window);
    }
};

TEST_F(ReviewLooksTest, EveryTextStandsOutOnLightAndDark) {
    const QPalette before = QApplication::palette();
    for (const auto& theme : themes) {
        QApplication::setPalette(palette_of(theme));
        {
            const PlainFont plain;
            begin_anew();
            visit_pages([&](const std::string& name) {
                expect_texts_readable(std::string(theme.name) + ' ' + name, *window);
                expect_icons_seen(std::string(theme.name) + ' ' + name, *window);
            });
        }
        if (qEnvironmentVariableIsSet("GULLYMARK_PICTURES")) {
            begin_anew();
            visit_pages(
                [&](const std::string& name) { keep_picture(theme.name, "review " + name, *window); });
        }
    }
    QApplication::setPalette(before);
}

TEST_F(ReviewLooksTest, TheWindowFollowsThePaletteWhileItIsOpen) {
    const QPalette before = QApplication::palette();
    const PlainFont plain;
    QApplication::setPalette(palette_of(themes[0]));
    open();
    findings().setCurrentIndex(findings().model()->index(1, 0));
    for (const std::size_t next : {1U, 0U, 2U, 0U}) {
        QApplication::setPalette(palette_of(themes.at(next)));
        settle();
        expect_texts_readable(std::string("turned ") + themes.at(next).name, *window);
    }
    QApplication::setPalette(before);
}

TEST_F(ReviewLooksTest, TheWindowFitsTheScreen) {
    visit_pages([&](const std::string& name) {
        const QRect room = window->screen()->availableGeometry();
        EXPECT_LE(window->width(), room.width()) << name;
        EXPECT_LE(window->height(), room.height()) << name;
        EXPECT_LE(window->minimumSizeHint().width(), room.width()) << name;
        EXPECT_LE(window->minimumSizeHint().height(), room.height()) << name;
    });
}

/// Each letter that goes with Alt leads to one place.
TEST_F(ReviewLooksTest, NoLetterLeadsToTwoPlaces) {
    visit_pages([&](const std::string& name) {
        std::map<QString, QString> letters;
        const auto take = [&](const QString& caption) {
            if (const QString keys = QKeySequence::mnemonic(caption).toString(); !keys.isEmpty()) {
                EXPECT_TRUE(letters.try_emplace(keys, caption).second)
                    << name << ": " << keys.toStdString() << " leads to " << letters[keys].toStdString()
                    << " and " << caption.toStdString();
            }
        };
        for (const QAction* menu : window->menuBar()->actions()) {
            take(menu->text());
        }
        for (const auto* tab_widget : window->findChildren<QTabWidget*>()) {
            for (int tab = 0; tab < tab_widget->count(); ++tab) {
                take(tab_widget->tabText(tab));
            }
        }
        for (const auto* button : window->findChildren<QAbstractButton*>()) {
            take(button->isVisible() ? button->text() : QString());
        }
        for (const auto* label : window->findChildren<QLabel*>()) {
            take(label->isVisible() && label->buddy() != nullptr ? label->text() : QString());
        }
    });
}

/// The Tab key goes on and on through what stands on the window, and comes back to where it began.
TEST_F(ReviewLooksTest, TheTabKeyReachesAllThatCanBeUsed) {
    open();
    for (int page = 0; page < 2; ++page) {
        find<QTabWidget>("details").setCurrentIndex(page);
        find<QLineEdit>("filter").setFocus();
        std::vector<std::string> reached;
        for (int i = 0; i < 30; ++i) {
            const std::string name = QApplication::focusWidget()->objectName().toStdString();
            if (std::ranges::find(reached, name) != reached.end()) {
                break;
            }
            reached.push_back(name);
            press(*window, Qt::Key_Tab);
        }
        const std::vector<std::string> wanted{"filter",          "bypass_limit",      "severity_wrong",
                                              "severity_beyond", "severity_doubtful", "findings",
                                              "finding"};
        EXPECT_TRUE(std::ranges::equal(wanted, std::vector(reached.begin(), reached.begin() + 7)))
            << testing::PrintToString(reached);
        const auto also =
            page == 0 ? std::vector<std::string>{"inlet_findings"}
                      : std::vector<std::string>{"calculation", "print", "save_as_pdf", "copy_as_text"};
        for (const auto& name : also) {
            EXPECT_TRUE(std::ranges::find(reached, name) != reached.end()) << testing::PrintToString(reached);
        }
    }
}

TEST_F(ReviewLooksTest, WhatTakesTheFocusHasANameForAScreenReader) {
    open();
    for (const auto* widget : window->findChildren<QWidget*>()) {
        if (widget->focusPolicy() == Qt::NoFocus || widget->objectName().startsWith("qt_")) {
            continue;
        }
        QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(widget));
        ASSERT_NE(seen, nullptr);
        EXPECT_FALSE(seen->text(QAccessible::Name).isEmpty())
            << widget->metaObject()->className() << ' ' << widget->objectName().toStdString();
    }
}

}  // namespace
}  // namespace gullymark::shell
