#include "calculation/as_text.h"

#include <sstream>

#include "calculation_fixture.h"

namespace gullymark::calculation {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

class AsText : public CalculationTest {};

TEST_F(AsText, TellsEachStepWithItsFormulaNumbersValueMeaningSourceAndDeparture) {
    const std::string text = as_text(work_out_open_inlet());
    EXPECT_THAT(text, StartsWith("WORKED CALCULATION\n\nProject           P-1 "));
    EXPECT_THAT(text, HasSubstr("\nCounty            Autauga               State             Alabama\n"));
    EXPECT_THAT(text,
                HasSubstr("\nInlet type        Curb Inlet            Location          CONTINUOUS GRADE\n"));
    EXPECT_THAT(text, HasSubstr("\nInlet and section\n"
                                "   1  Q = 2.700 cfs  Flow that the inlet must take (TOTAL_DISCHARGE)\n"));
    EXPECT_THAT(text,
                HasSubstr("\n  15  a = W \u00D7 (S'w \u2212 Sw) = 2 \u00D7 (0.3333 \u2212 0.0833) = 0.5 ft  "
                          "depression at the\n          curb  [local depression, 4e figure 7.9] (1)\n"));
    EXPECT_THAT(text, HasSubstr("\n  40  if W > 0 and Sw > Sx: 2 > 0 and 0.0833 > 0.0208: yes\n"));
    EXPECT_THAT(text, HasSubstr("\n          searched from 2 to 48 so that the residual vanishes: 17 passes, "
                                "until\n          the flow is within 0.0001\n"));
    EXPECT_THAT(text, HasSubstr("\nDepartures from the publications\n"
                                "(1)  derived from slopes; LOCALDEP is not read\n"));
    EXPECT_THAT(text, HasSubstr("\nown: a rule of this program, no publication is known\n"));
}

TEST_F(AsText, FitsALetterOfEightyColumns) {
    engine::open_inlet.set(Column::ROADWAY, "A roadway with a name that is longer than half of a line is");
    std::istringstream lines(as_text(work_out_open_inlet()));
    for (std::string line; std::getline(lines, line);) {
        std::size_t letters = 0;
        for (const char byte : line) {
            letters += (byte & 0xC0) != 0x80 ? 1 : 0;
        }
        EXPECT_LE(letters, 80U) << line;
        EXPECT_TRUE(line.empty() || line.back() != ' ') << '"' << line << '"';
    }
}

TEST_F(AsText, BeginsWithWhatIsWrong) {
    engine::open_inlet.set(Column::QCARRY, "0.500");
    EXPECT_THAT(as_text(work_out_open_inlet()),
                StartsWith("The stored results do not follow from the stored inputs: QCARRY is stored as\n"
                           "     0.500 and comes out as 0.532.\n\nWORKED CALCULATION\n"));
}

}  // namespace
}  // namespace gullymark::calculation
