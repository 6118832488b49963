// What the searches tell while somebody traces, and that they find the same then.

#include <algorithm>
#include <random>

#include "engine/engine_fixture.h"
#include "engine/hydraulics/Common_Libraries.h"

namespace gullymark::engine {
namespace {

using formula::Working;

class TracedSearches : public EngineTest {
  protected:
    void TearDown() override {
        formula::workings = nullptr;
        EngineTest::TearDown();
    }

    /// What a search comes to: its answer, or its fault.
    struct End {
        double answer = 0.0;
        Fault fault = Fault::none;
    };

    /// The search with its lines where `told` takes them.
    template <typename Search>
    static End end_of(Search&& search, std::vector<Working>* told) {
        formula::workings = told;
        End end;
        try {
            end.answer = search().number();
        } catch (Fault fault) {
            end.fault = fault;
        }
        formula::workings = nullptr;
        return end;
    }

    template <typename Search>
    void expect_same(Search&& search) {
        const End plain = end_of(search, nullptr);
        lines.clear();
        const End traced = end_of(search, &lines);
        EXPECT_EQ(plain.fault, traced.fault);
        EXPECT_EQ(plain.answer, traced.answer);
    }

    /// The line of the search itself.
    [[nodiscard]] const Working& search_told() const {
        const auto line = std::find_if(lines.begin(), lines.end(), [](const Working& each) {
            return each.kind == Working::Kind::search;
        });
        EXPECT_NE(line, lines.end());
        return *line;
    }

    double any(double low, double high) { return std::uniform_real_distribution(low, high)(random_); }

    std::vector<Working> lines;

  private:
    std::mt19937_64 random_{11};  // the same in every run
};

GutterFlow gutter_of(double Q, double limit) {
    return {.K = 0.56F,
            .Q = Q,
            .S = 0.01,
            .n = 0.016,
            .W = 2.0,
            .Sx = 0.02,
            .Sw = 0.08,
            .Wa = 0.0,
            .spread_limit = limit};
}

TEST_F(TracedSearches, ATraceChangesNoDigitOfASearch) {
    for (int i = 0; i < 300; ++i) {
        GutterFlow gutter = gutter_of(any(-1.0, 30.0), any(1.0, 12.0));
        gutter.S = any(-0.01, 0.1);
        gutter.W = i % 7 == 0 ? 0.0 : any(-0.5, 4.0);
        gutter.Sx = any(-0.002, 0.06);
        gutter.Sw = i % 11 == 0 ? 0.0 : any(-0.01, 0.1);
        expect_same([&] { return compute_gutter_spread(gutter); });
        const double Q = any(-1.0, 200.0);
        const double n = any(-0.005, 0.1);
        const double z = any(0.0, 6.0);
        expect_same([&] { return compute_ditch_depth(1.486F, Q, 0.01, n, 2.0, z, 3.0); });
        const SumpFlow sump{.Q = any(-1.0, 60.0),
                            .A = any(0.0, 5.0),
                            .g = 32.174F,
                            .B = 0.5,
                            .h = any(0.1, 1.0),
                            .C = any(0.0, 10.0),
                            .throat = static_cast<Throat>(i % 4),
                            .angle = any(0.0, 1.5)};
        expect_same([&] { return compute_sump_depth(sump); });
    }
}

TEST_F(TracedSearches, TheCeilingIsToldWhereASpreadComesToIt) {
    expect_same([] { return compute_gutter_spread(gutter_of(30.0, 1.0)); });
    EXPECT_EQ(search_told().meaning, "the ceiling of the search, which no greater discharge passes");
    EXPECT_EQ(search_told().number, 6.0);
    EXPECT_EQ(search_told().tolerance, 0.0);
}

TEST_F(TracedSearches, ASearchThatNoPassBringsCloserSaysSo) {
    expect_same([] { return compute_ditch_depth(1.486F, 3e15, 0.03, 0.03, 2.0, 6.0, 6.0); });
    EXPECT_EQ(search_told().meaning, "no pass comes closer");
    EXPECT_EQ(search_told().tolerance, 0.0);
}

TEST_F(TracedSearches, AnEndlessSearchTellsNoAnswer) {
    expect_same([] { return compute_ditch_depth(1.486F, 9.9, 0.0, 0.03, 2.0, 6.0, 6.0); });
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines.front().symbol, "ceiling");
}

TEST_F(TracedSearches, ABoxIsToldAmongTheLines) {
    expect_same([] { return compute_gutter_spread(gutter_of(0.0, 8.0)); });
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines.front().text, "No results computed.  Check your input for discharge.");
}

TEST_F(TracedSearches, AFaultOfASearchIsTold) {
    GutterFlow gutter = gutter_of(3.0, 8.0);
    gutter.n = -0.016;
    expect_same([&] { return compute_gutter_spread(gutter); });
    EXPECT_EQ(lines.back().text, "no spread is found, it is 0: no real power");
}

}  // namespace
}  // namespace gullymark::engine
