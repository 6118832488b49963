#include "store/project_store.h"

#include "platform/failure.h"
#include "platform/outside.h"
#include "store/project_session.h"

namespace gullymark::store {

ProjectStore project_store;

namespace {

std::string quoted(std::string_view number) {
    return "'" + std::string(number) + "'";
}

std::string update_inlets(const std::string& column, std::string_view new_number,
                          std::string_view old_number) {
    return "UPDATE INLET SET " + column + " = " + quoted(new_number) + " WHERE " + column + " = " +
           quoted(old_number);
}

/// The statement that looks for the number by that word; empty for a word that names no column of the three.
std::string usage_statement(std::string_view number, std::string_view word) {
    if (word == "INLET_NUMBER") {
        return select_number_usage(number);
    }
    if (word == "PREINLET1") {
        return select_preinlet1_usage(number);
    }
    return word == "PREINLET2" ? select_preinlet2_usage(number) : "";
}

}  // namespace

std::string select_inlet(std::string_view number) {
    return "SELECT * FROM INLET WHERE INLET_NUMBER = " + quoted(number);
}

std::string select_number_usage(std::string_view number) {
    return "select INLET_NUMBER from INLET WHERE INLET_NUMBER = " + quoted(number);
}

std::string select_preinlet1_usage(std::string_view number) {
    return "select INLET_NUMBER,PREINLET1 from INLET WHERE PREINLET1 = " + quoted(number);
}

std::string select_preinlet2_usage(std::string_view number) {
    return "select INLET_NUMBER,PREINLET2 from INLET WHERE PREINLET2 = " + quoted(number);
}

std::array<std::string, 3> renumber_inlet(std::string_view new_number, std::string_view old_number) {
    return {update_inlets("INLET_NUMBER", new_number, old_number),
            update_inlets("PREINLET1", new_number, old_number),
            update_inlets("PREINLET2", new_number, old_number)};
}

void find_inlet(platform::RowSet& inlets, std::string_view number) {
    inlets.move_first();
    inlets.find("INLET_NUMBER = " + quoted(number));
}

std::string not_in_project(std::string_view number) {
    return "Inlet " + std::string(number) + " is not in this project";
}

bool CheckInletUsage(std::string_view inlet_number, std::string_view word) {
    return find_inlet_usage(inlet_number, word) == InletUsage::a_row;
}

InletUsage find_inlet_usage(std::string_view inlet_number, std::string_view word) {
    const std::string statement = usage_statement(inlet_number, word);
    if (statement.empty()) {
        return InletUsage::no_row;
    }
    const bool names_previous_inlet = word != "INLET_NUMBER";
    if (names_previous_inlet) {
        session.ReferencingInletNumber = "";
    }
    if (inlet_number.empty()) {
        return InletUsage::no_row;
    }
    try {
        platform::RowSet inlets;
        inlets.open(project_store.connection, statement);
        if (inlets.record_count() == 0) {
            return InletUsage::no_row;
        }
        if (names_previous_inlet) {
            session.ReferencingInletNumber = inlets.value("INLET_NUMBER").value_or("");
        }
        return InletUsage::a_row;
    } catch (const platform::Failure& failure) {
        platform::tell(failure.what());
        return inlet_number.find('\'') == std::string_view::npos ? InletUsage::unread : InletUsage::no_row;
    }
}

}  // namespace gullymark::store
