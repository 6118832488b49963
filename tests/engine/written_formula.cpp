#include "engine/written_formula.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <cstddef>
#include <cstdio>
#include <cstdlib>

namespace gullymark::engine::written {
namespace {

bool is_one_of(char c, std::string_view letters) {
    return letters.find(c) != std::string_view::npos;
}

/// A sign stands between blanks; a minus that a digit follows belongs to its number.
std::string next_word(std::string_view text, std::size_t& at) {
    const std::size_t start = at;
    if (text[at] == '"') {
        at = text.find('"', at + 1);
        if (at == std::string_view::npos) {
            throw NoFormula{"an open quote"};
        }
        ++at;
    } else if (is_one_of(text[at], "(),^")) {
        ++at;
    } else {
        while (at < text.size() && !is_one_of(text[at], " (),^\"")) {
            ++at;
        }
    }
    return std::string(text.substr(start, at - start));
}

/// True for the name of a function, and for no sign.
bool is_name(const std::string& word) {
    return std::isalpha(static_cast<unsigned char>(word.front())) != 0 && word != "x" && word != "and" &&
           word != "or" && word != "not";
}

/// "(-2)" is one word, but not in "sin(-2)".
void join_negative(std::vector<std::string>& words) {
    std::vector<std::string> joined;
    for (auto& word : words) {
        joined.push_back(std::move(word));
        const std::size_t n = joined.size();
        if (n < 3 || joined[n - 1] != ")" || joined[n - 3] != "(" || joined[n - 2].size() == 1 ||
            joined[n - 2].front() != '-' || (n > 3 && is_name(joined[n - 4]))) {
            continue;
        }
        const std::string number = joined[n - 2];
        joined.resize(n - 3);
        joined.push_back(number);
    }
    words = std::move(joined);
}

double numeric(const Value& value) {
    const auto* const number = std::get_if<double>(&value);
    if (number == nullptr) {
        throw NoValue{};
    }
    return *number;
}

double finite(double number) {
    if (!std::isfinite(number)) {
        throw NoValue{};
    }
    return number;
}

class Reader {
  public:
    Reader(std::vector<std::string> words, const Functions& functions)
        : words_(std::move(words)), functions_(functions) {}

    Value whole() {
        Value value = either();
        if (at_ != words_.size()) {
            throw NoFormula{"what comes after: " + words_[at_]};
        }
        return value;
    }

  private:
    bool takes(std::string_view word) {
        if (at_ < words_.size() && words_[at_] == word) {
            ++at_;
            return true;
        }
        return false;
    }

    /// Reads on without a value: the side of a condition that is not reached.
    template <typename Read>
    void pass_by(Read&& read) {
        const bool before = passing_;
        passing_ = true;
        read();
        passing_ = before;
    }

    Value either() {
        Value value = both();
        while (takes("or")) {
            if (!passing_ && truth(value)) {
                pass_by([this] { both(); });
            } else {
                value = both();
            }
        }
        return value;
    }

    Value both() {
        Value value = denial();
        while (takes("and")) {
            if (!passing_ && !truth(value)) {
                pass_by([this] { denial(); });
            } else {
                value = denial();
            }
        }
        return value;
    }

    Value denial() {
        if (takes("not")) {
            const Value value = denial();
            return passing_ || !truth(value);
        }
        return comparison();
    }

    Value comparison() {
        Value left = sum();
        for (const auto* const sign : {"=", "<>", "<", "<=", ">", ">="}) {
            if (takes(sign)) {
                const Value right = sum();
                return passing_ || compare(left, sign, right);
            }
        }
        return left;
    }

    static bool compare(const Value& left, const std::string& sign, const Value& right) {
        if (std::holds_alternative<std::string>(left) && std::holds_alternative<std::string>(right)) {
            return left == right;
        }
        const double a = numeric(left);
        const double b = numeric(right);
        return sign == "="    ? a == b
               : sign == "<>" ? a != b
               : sign == "<"  ? a < b
               : sign == "<=" ? a <= b
               : sign == ">"  ? a > b
                              : a >= b;
    }

    Value sum() {
        Value value = product();
        while (true) {
            if (takes("+")) {
                value = both_sides(value, product(), [](double a, double b) { return a + b; });
            } else if (takes("-")) {
                value = both_sides(value, product(), [](double a, double b) { return a - b; });
            } else {
                return value;
            }
        }
    }

    Value product() {
        Value value = power();
        while (true) {
            if (takes("x")) {
                value = both_sides(value, power(), [](double a, double b) { return a * b; });
            } else if (takes("/")) {
                value = both_sides(value, power(), [](double a, double b) { return a / b; });
            } else {
                return value;
            }
        }
    }

    Value power() {
        const Value base = operand();
        return takes("^") ? both_sides(base, operand(), [](double a, double b) { return std::pow(a, b); })
                          : base;
    }

    template <typename Apply>
    Value both_sides(const Value& left, const Value& right, Apply&& apply) {
        return passing_ ? Value(0.0) : Value(finite(apply(numeric(left), numeric(right))));
    }

    Value operand() {
        if (takes("(")) {
            Value value = either();
            expect(")");
            return value;
        }
        if (at_ == words_.size()) {
            throw NoFormula{"an operand is missing"};
        }
        const std::string word = words_[at_++];
        if (word.front() == '"') {
            return word.substr(1, word.size() - 2);
        }
        if (word == "?") {
            throw NoValue{};
        }
        return takes("(") ? call(word) : Value(number_of(word));
    }

    Value call(const std::string& name) {
        std::vector<Value> arguments;
        if (!takes(")")) {
            do {
                arguments.push_back(either());
            } while (takes(","));
            expect(")");
        }
        if (const auto found = functions_.find(name); found != functions_.end()) {
            return found->second;
        }
        return passing_ ? Value(0.0) : apply(name, arguments);
    }

    static Value apply(const std::string& name, const std::vector<Value>& arguments) {
        if (name == "max" && arguments.size() == 2) {
            return std::max(numeric(arguments[0]), numeric(arguments[1]));
        }
        if (name == "round" && arguments.size() == 2) {
            return number_of(rounded_text(numeric(arguments[0]), static_cast<int>(numeric(arguments[1]))));
        }
        if (arguments.size() != 1) {
            throw NoValue{};  // a function whose lines tell no value
        }
        const double number = numeric(arguments[0]);
        if (name == "sqrt") {
            return finite(std::sqrt(number));
        }
        if (name == "sin") {
            return std::sin(number);
        }
        if (name == "ln") {
            return finite(std::log(number));
        }
        throw NoFormula{"no function " + name};
    }

    static bool truth(const Value& value) {
        const auto* const answer = std::get_if<bool>(&value);
        if (answer == nullptr) {
            throw NoFormula{"no condition"};
        }
        return *answer;
    }

    void expect(std::string_view word) {
        if (!takes(word)) {
            throw NoFormula{"no " + std::string(word)};
        }
    }

    std::vector<std::string> words_;
    std::size_t at_ = 0;
    const Functions& functions_;
    bool passing_ = false;
};

}  // namespace

Value evaluate(std::string_view formula, const Functions& functions) {
    return Reader(words_of(formula), functions).whole();
}

std::vector<std::string> words_of(std::string_view formula) {
    std::vector<std::string> words;
    std::size_t at = 0;
    while (at < formula.size()) {
        if (formula[at] == ' ') {
            ++at;
        } else {
            words.push_back(next_word(formula, at));
        }
    }
    join_negative(words);
    return words;
}

double number_of(const std::string& text) {
    char* end = nullptr;
    const double number = std::strtod(text.c_str(), &end);
    if (text.empty() || end != text.c_str() + text.size()) {
        throw NoValue{};
    }
    return finite(number);
}

std::string rounded_text(double number, int decimals) {
    std::array<char, 40> letters{};
    (void)std::snprintf(letters.data(), letters.size(), "%.14e", std::fabs(number));
    const std::string text = letters.data();
    std::string digits = text.substr(0, 1) + text.substr(2, 14);
    const auto exponent = static_cast<int>(std::strtol(text.c_str() + text.find('e') + 1, nullptr, 10));
    // A digit string of the number times 10^decimals, to be cut behind its whole part.
    const int kept = exponent + 1 + decimals;
    bool up = false;
    if (kept < 0) {
        digits = "0";
    } else {
        digits.resize(std::max(digits.size(), static_cast<std::size_t>(kept) + 1), '0');
        up = digits[static_cast<std::size_t>(kept)] >= '5';
        digits.resize(static_cast<std::size_t>(kept));
    }
    digits.insert(0, "0");
    for (auto at = digits.rbegin(); up && at != digits.rend(); ++at) {
        up = *at == '9';
        *at = up ? '0' : static_cast<char>(*at + 1);
    }
    const auto behind = static_cast<std::size_t>(decimals);
    digits.insert(0, behind + 1 > digits.size() ? behind + 1 - digits.size() : 0, '0');
    std::string whole = digits.substr(0, digits.size() - behind);
    whole.erase(0, std::min(whole.find_first_not_of('0'), whole.size() - 1));
    std::string result = whole + (decimals > 0 ? "." + digits.substr(digits.size() - behind) : "");
    const bool is_zero = result.find_first_of("123456789") == std::string::npos;
    return number < 0.0 && !is_zero ? '-' + result : result;
}

}  // namespace gullymark::engine::written
