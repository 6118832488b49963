#include "review/balance.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "review/sides.h"
#include "review/texts.h"

namespace gullymark::review {

using engine::Column;

namespace {

/// Half a unit of the last digit of a text.
double half_a_digit(const std::string& text) {
    const auto point = text.find('.');
    const auto decimals = point == std::string::npos ? 0 : text.size() - point - 1;
    return 0.5 * std::pow(10.0, -static_cast<double>(std::min<std::size_t>(decimals, 300)));
}

void add_inlet(Balance& balance, const Links& links, const engine::InletRecord& record) {
    const auto shares = shares_of(record);
    balance.in += shares.from_left.number() + shares.from_right.number() + shares.overland.number();
    balance.intercepted += number_or_zero(record, Column::QINT);
    if (links.takers_of(record.text(Column::INLET_NUMBER)).empty()) {
        balance.out += number_or_zero(record, Column::QCARRY);
    }
    for (const Column column : {Column::TOTAL_DISCHARGE, Column::QINT, Column::QCARRY}) {
        if (number_of(record.text(column))) {
            balance.rounding += half_a_digit(record.text(column));
        }
    }
}

}  // namespace

bool Balance::closes() const {
    constexpr double sums_of_doubles = 1e-9;
    return std::isfinite(unexplained()) &&
           std::fabs(unexplained()) <= rounding + sums_of_doubles * std::fabs(in);
}

Balance balance_of(const Project& project, const Links& links) {
    Balance balance;
    for (const auto& record : project.inlets) {
        add_inlet(balance, links, record);
    }
    return balance;
}

Balance balance_of(const Project& project) {
    return balance_of(project, Links(project));
}

}  // namespace gullymark::review
