#include "faults/statements.h"

#include <sqlite3.h>

#include <utility>

namespace gullymark::faults {
namespace {

struct Onlooker {
    std::function<void()> ended;
    std::function<void()> began;
};

Onlooker onlooker;

int statement_passes(unsigned event, void* /*context*/, void* /*statement*/, void* /*text*/) {
    Onlooker looking = std::exchange(onlooker, {});
    if (const auto& look = event == SQLITE_TRACE_PROFILE ? looking.ended : looking.began) {
        look();
    }
    onlooker = std::move(looking);
    return 0;
}

int trace_statements(sqlite3* file, char** /*message*/, const sqlite3_api_routines* /*routines*/) {
    return sqlite3_trace_v2(file, SQLITE_TRACE_PROFILE | SQLITE_TRACE_STMT, statement_passes, nullptr);
}

}  // namespace

StatementsSeen::StatementsSeen(std::function<void()> ended, std::function<void()> began) {
    onlooker = {std::move(ended), std::move(began)};
    sqlite3_auto_extension(reinterpret_cast<void (*)()>(trace_statements));
}

StatementsSeen::~StatementsSeen() {
    sqlite3_cancel_auto_extension(reinterpret_cast<void (*)()>(trace_statements));
    onlooker = {};
}

}  // namespace gullymark::faults
