// A reviewer's book: what its pages tell, and how many there are.

#include "shell/review/book.h"

#include <QPainter>
#include <QPdfWriter>
#include <QRegularExpression>
#include <QTextDocument>

#include "calculation/units_in_force.h"
#include "review/review_fixture.h"
#include "shell/review/book_html.h"

namespace gullymark::shell {
namespace {

using engine::Column;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

std::string plain(const QString& html) {
    QTextDocument document;
    document.setHtml(html);
    return document.toPlainText().toStdString();
}

int pages_in(const QByteArray& pdf) {
    static const QRegularExpression page(QStringLiteral("/Type /Page\\n"));
    return static_cast<int>(QString::fromLatin1(pdf).count(page));
}

class BookTest : public review::ReviewTest {
  protected:
    [[nodiscard]] review::Reviewed reviewed() const {
        return {.project = project,
                .findings = review::judge(project, limits),
                .fresh = review::make_fresh_road(project),
                .balance = review::balance_of(project)};
    }
    [[nodiscard]] static BookRequest request(const review::Reviewed& of) {
        return {
            .reviewed = of, .file = QStringLiteral("road.gmk"), .today = std::chrono::year(2026) / 11 / 22};
    }
    /// L1 takes twice the runoff that its results were solved for.
    void make_stale() {
        change(0, {{Column::RUNOFF_AREA, "0.4000"},
                   {Column::DISCHARGE1, "1.800"},
                   {Column::TOTAL_DISCHARGE, "1.800"}});
    }

    calculation::UnitsInForce units{"ENGLISH"};
};

TEST_F(BookTest, TheTitleTellsProjectFileDateAndCounts) {
    const auto text =
        plain(book_title_html(reviewed(), QStringLiteral("road <1>.gmk"), QStringLiteral("11/22/2026")));
    for (const char* told : {"Review of Mill Road", "P-1", "ENGLISH", "road <1>.gmk", "11/22/2026",
                             "0 findings on 10 inlets: 0 wrong, 0 beyond, 0 doubtful"}) {
        EXPECT_THAT(text, HasSubstr(told));
    }
}

TEST_F(BookTest, WhatToDoTellsTheInletsInTheirOrder) {
    EXPECT_THAT(plain(book_to_do_html(reviewed()).join(QString())), HasSubstr("Every inlet is up to date"));
    make_stale();
    EXPECT_EQ(plain(book_to_do_html(reviewed()).join(QString())),
              "Open, solve and save, in this order: L1, L2, L3, L4, L5, S1.");
}

TEST_F(BookTest, AnObstacleIsToldAsWell) {
    change(2, {{Column::PREINLET1, "nowhere"}});
    const auto all = reviewed();
    ASSERT_EQ(all.fresh.obstacles.size(), 1U);
    EXPECT_THAT(plain(book_to_do_html(all).join(QString())), HasSubstr(all.fresh.obstacles.front().text));
}

TEST_F(BookTest, TheBalanceTellsWhetherRoundingExplainsIt) {
    const std::string text =
        plain(book_balance_html({.in = 9.0, .intercepted = 8.0, .out = 0.5, .rounding = 0.01}));
    for (const char* told : {"9.000 cfs", "8.000 cfs", "0.500 cfs",
                             "Rounding does not explain it: that would be at most 0.010 cfs."}) {
        EXPECT_THAT(text, HasSubstr(told));
    }
    EXPECT_THAT(plain(book_balance_html({.in = 1.0, .intercepted = 1.0, .out = 0.0, .rounding = 0.01})),
                HasSubstr("Rounding explains what is left: it may be 0.010 cfs."));
}

TEST_F(BookTest, AFindingIsToldWithItsAdviceAndItsMarksAreLetters) {
    const std::string text = plain(
        book_finding_html({.index = 2, .inlet = "<b>3</b>", .text = "5 < 6 & more.", .advice = "Look."}));
    EXPECT_THAT(text, HasSubstr("<b>3</b>"));
    EXPECT_THAT(text, HasSubstr("5 < 6 & more."));
    EXPECT_THAT(text, HasSubstr("Look."));
    EXPECT_THAT(plain(book_finding_html({.index = review::whole_project, .text = "x"})),
                HasSubstr("The project"));
}

TEST_F(BookTest, ARowTellsWhatAValueWouldBeOnlyWhereItIsAnother) {
    EXPECT_THAT(plain(book_table_row(reviewed(), 0)), Not(HasSubstr("\u2192")));
    EXPECT_THAT(plain(book_table_row(reviewed(), 0)), HasSubstr(stored(0, Column::QINT)));
    make_stale();
    const auto all = reviewed();
    EXPECT_THAT(plain(book_table_row(all, 0)),
                HasSubstr("\u2192 " + all.fresh.inlet(project, 0).text(Column::OPENSPREAD)));
    EXPECT_THAT(plain(book_table_row(all, 6)), Not(HasSubstr("\u2192")));
}

TEST_F(BookTest, InASumpTheDepthIsThatAtTheInlet) {
    ASSERT_FALSE(stored(sump, Column::DEPTHATINLET).empty());
    EXPECT_THAT(plain(book_table_row(reviewed(), sump)), HasSubstr(stored(sump, Column::DEPTHATINLET)));
}

TEST_F(BookTest, EveryInletBeginsAPage) {
    const auto with_ten = pages_in(book_pdf(request(reviewed())).value());
    project.inlets.pop_back();
    const auto with_nine = pages_in(book_pdf(request(reviewed())).value());
    project.inlets.clear();
    EXPECT_EQ(pages_in(book_pdf(request(reviewed())).value()), 1);
    EXPECT_GE(with_ten, with_nine + 1);
    EXPECT_GE(with_nine, 10);
}

TEST_F(BookTest, IsEndedWhenThatIsAsked) {
    const auto all = reviewed();
    auto asked = request(all);
    std::vector<std::size_t> told;
    asked.progress = [&](std::size_t done, std::size_t of) {
        EXPECT_EQ(of, 10U);
        told.push_back(done);
        return done < 3;
    };
    EXPECT_FALSE(book_pdf(asked).has_value());
    EXPECT_THAT(told, testing::ElementsAre(0, 1, 2, 3));
}

TEST_F(BookTest, TextsOfAnyKindStandInIt) {
    change(0, {{Column::INLET_NUMBER, std::string(4000, 'w')},
               {Column::STATION, "<table>&\"'"},
               {Column::QINT, "1e308"}});
    change(1, {{Column::INLET_TYPE, "none"}, {Column::TOTAL_DISCHARGE, "\xff\xfe"}});
    project.name = "";
    EXPECT_GT(pages_in(book_pdf(request(reviewed())).value()), 10);
}

}  // namespace
}  // namespace gullymark::shell
