#include "hostile/hostile_files.h"

#include "support/project_file.h"

namespace gullymark::hostile {
namespace {

using testing_support::run_sql;

/// A file that these statements spoil.
std::function<void(const std::string&)> sql(const std::string& statements) {
    return [statements](const std::string& path) { run_sql(path, statements); };
}

/// A file of which the definition of INLET has this text for its last parenthesis. The engine is told nothing of it.
std::function<void(const std::string&)> end_of_inlet(const std::string& text) {
    std::string quoted;
    for (const char letter : text) {
        quoted += letter == '\'' ? "''" : std::string(1, letter);
    }
    return sql(
        "PRAGMA writable_schema = ON; UPDATE sqlite_schema SET sql = rtrim(sql, ') ' || char(10)) || '" +
        quoted + "' WHERE name = 'INLET'");
}

std::string many(int count, const std::string& before, const std::string& after) {
    std::string text;
    for (int i = 0; i < count; ++i) {
        text.append(before).append(std::to_string(i)).append(after);
    }
    return text;
}

std::string no_project_has(const std::string& what) {
    return "the file holds what no project has, the " + what;
}

const std::string too_many = "the file holds more tables and indexes than a project can: more than 100";
const std::string rows_without_end =
    "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) SELECT i ";

}  // namespace

void make_project(const std::string& path) {
    testing_support::make_project_file(path);
    run_sql(path,
            "INSERT INTO PROJECT (PROJECT_ID, PROJECT_NAME, COUNTY, STATE, DESIGNER, UNITS) "
            "VALUES ('P-1', 'Mill Road', 'Mobile', 'AL', 'A. Smith', 'ENGLISH');"
            "INSERT INTO INLET (INLET_NUMBER, STATION, INLET_TYPE, INLET_LOCATION) VALUES "
            "('1', '1+00', 'Curb Inlet', 'CONTINUOUS GRADE'), ('2', '2+00', 'Grate Inlet', 'SUMP'),"
            "('3', '3+00', 'Slotted Inlet', 'CONTINUOUS GRADE')");
}

std::vector<HostileFile> schema_files() {
    using enum Outcome;
    return {
        // Views.
        {"view_for_a_table", refused, no_project_has("view INLET"),
         sql("ALTER TABLE INLET RENAME TO T; CREATE VIEW INLET AS SELECT * FROM T")},
        {"view_without_end", refused, no_project_has("view INLET"),
         sql("DROP TABLE INLET; CREATE VIEW INLET AS " + rows_without_end + "AS INLET_NUMBER FROM n")},
        {"view_without_end_of_details", refused, no_project_has("view PROJECT"),
         sql("DROP TABLE PROJECT; CREATE VIEW PROJECT AS " + rows_without_end + "AS PROJECT_ID FROM n")},
        {"view_aside", refused, no_project_has("view ASIDE"),
         sql("CREATE VIEW ASIDE AS " + rows_without_end + "FROM n")},
        {"views_of_each_other", refused, no_project_has("view A"),
         sql("CREATE VIEW A AS SELECT * FROM B; CREATE VIEW B AS SELECT * FROM A")},
        {"view_that_deletes", refused, no_project_has("view INLET"),
         sql("ALTER TABLE INLET RENAME TO T; CREATE VIEW INLET AS SELECT * FROM T;"
             "CREATE TRIGGER G INSTEAD OF UPDATE ON INLET BEGIN DELETE FROM T; END")},
        {"view_said_to_be_a_table", refused, "malformed database schema (ASIDE)",
         sql("CREATE VIEW ASIDE AS SELECT 1; PRAGMA writable_schema = ON;"
             "UPDATE sqlite_schema SET type = 'table' WHERE name = 'ASIDE'")},

        // Columns that are computed, checked or compared in another way.
        {"generated_column", refused, no_project_has("table INLET"),
         sql("ALTER TABLE INLET ADD G TEXT AS (INLET_NUMBER || '!')")},
        {"generated_column_of_a_megabyte", refused, no_project_has("table INLET"),
         sql("ALTER TABLE INLET ADD G TEXT GENERATED ALWAYS AS (hex(zeroblob(500000)))")},
        {"generated_column_that_is_stored", refused, no_project_has("table T"),
         sql("CREATE TABLE T (A TEXT, B TEXT GENERATED ALWAYS AS (A) STORED)")},
        {"generated_column_for_a_number", refused, no_project_has("table INLET"),
         sql("DROP TABLE INLET; CREATE TABLE INLET (N TEXT, INLET_NUMBER TEXT AS (N), STATION TEXT, OFFSET "
             "TEXT);"
             "INSERT INTO INLET VALUES ('1', '', '')")},
        {"generated_column_behind_comments", refused, no_project_has("table T"),
         sql("CREATE TABLE T (A TEXT, B TEXT /* ' */ AS -- )\n (A))")},
        {"check", refused, no_project_has("table T"), sql("CREATE TABLE T (A TEXT CHECK (length(A) < 9))")},
        {"check_that_takes_for_ever", refused, no_project_has("table INLET"),
         end_of_inlet("), CHECK (replace(hex(zeroblob(40000)), '0', hex(zeroblob(900))) <> ''))")},
        {"check_behind_a_mark", refused, no_project_has("table INLET"),
         end_of_inlet("), \xef\xbb\xbf"
                      "CHECK (hex(zeroblob(40000)) <> ''))")},
        {"default_formula", refused, no_project_has("table T"),
         sql("CREATE TABLE T (A TEXT, B TEXT DEFAULT (hex(zeroblob(40000))))")},
        {"other_order_of_texts", refused, no_project_has("table T"),
         sql("CREATE TABLE T (INLET_NUMBER TEXT COLLATE NOCASE)")},
        {"rule_that_replaces_rows", refused, no_project_has("table T"),
         sql("CREATE TABLE T (INLET_NUMBER TEXT PRIMARY KEY ON CONFLICT REPLACE)")},

        // Keys.
        {"column_rowid", refused, no_project_has("table INLET"), sql("ALTER TABLE INLET ADD rowid TEXT")},
        {"column_rowid_in_marks", refused, no_project_has("table INLET"),
         sql("ALTER TABLE INLET ADD \"RowId\" TEXT")},
        {"column_rowid_in_brackets", refused, no_project_has("table INLET"),
         sql("ALTER TABLE INLET ADD [ROWID] TEXT")},
        {"column_rowid_as_a_text", refused, no_project_has("table T"), sql("CREATE TABLE T ('rowid' TEXT)")},
        {"column_oid", opens, "", sql("ALTER TABLE INLET ADD oid TEXT; UPDATE INLET SET oid = 1")},
        {"column_rowid_with_dashes", opens, "",
         sql("ALTER TABLE INLET ADD _rowid_ TEXT; UPDATE INLET SET _rowid_ = 1")},
        {"column_that_is_the_key", opens, "",
         sql("CREATE TABLE T (ID INTEGER PRIMARY KEY AUTOINCREMENT, A TEXT)")},
        {"table_without_keys", refused, no_project_has("table INLET"),
         sql("DROP TABLE INLET; CREATE TABLE INLET (INLET_NUMBER TEXT PRIMARY KEY, STATION TEXT) WITHOUT "
             "ROWID")},
        {"table_without_keys_aside", refused, no_project_has("table T"),
         sql("CREATE TABLE T (A TEXT PRIMARY KEY) WITHOUT ROWID")},
        {"strict_table", refused, no_project_has("table T"), sql("CREATE TABLE T (A TEXT) STRICT")},

        // Virtual tables.
        {"search_table", refused, no_project_has("table S"), sql("CREATE VIRTUAL TABLE S USING fts5(A)")},
        {"virtual_table_for_inlets", refused, no_project_has("table INLET"),
         sql("DROP TABLE INLET; CREATE VIRTUAL TABLE INLET USING fts5(INLET_NUMBER, STATION, OFFSET)")},
        {"virtual_table_of_boxes", refused, no_project_has("table B"),
         sql("CREATE VIRTUAL TABLE B USING rtree(ID, X1, X2)")},
        {"virtual_table_of_nobody", refused, no_project_has("table V"),
         sql("PRAGMA writable_schema = ON; INSERT INTO sqlite_schema VALUES "
             "('table', 'V', 'V', 0, 'CREATE VIRTUAL TABLE V USING nobody(A)')")},

        // Indexes.
        {"index_on_a_formula", refused, no_project_has("index I"),
         sql("CREATE INDEX I ON INLET (upper(STATION))")},
        {"index_on_a_sum", refused, no_project_has("index I"),
         sql("CREATE INDEX I ON INLET (STATION || OFFSET)")},
        {"index_on_some_rows", refused, no_project_has("index I"),
         sql("CREATE INDEX I ON INLET (STATION) WHERE STATION > '1'")},
        {"index_in_another_order", refused, no_project_has("index I"),
         sql("CREATE INDEX I ON INLET (STATION COLLATE NOCASE)")},
        {"index", opens, "", sql("CREATE INDEX I ON INLET (INLET_NUMBER DESC, \"STATION\", [OFFSET] ASC)")},
        {"index_of_single_numbers", opens, "", sql("CREATE UNIQUE INDEX I ON INLET (INLET_NUMBER)")},

        // What would run by itself.
        {"trigger_that_deletes", opens, "",
         sql("CREATE TRIGGER G AFTER UPDATE ON INLET BEGIN DELETE FROM INLET; DELETE FROM PROJECT; END")},
        {"trigger_without_end", opens, "",
         sql("CREATE TRIGGER G BEFORE INSERT ON INLET BEGIN SELECT * FROM (" + rows_without_end +
             "FROM n); END")},
        {"reference_that_deletes", opens, "",
         sql("CREATE TABLE T (A TEXT REFERENCES INLET (INLET_NUMBER) ON DELETE CASCADE); INSERT INTO T "
             "VALUES ('1')")},
        {"number_that_is_a_condition", opens, "",
         sql("UPDATE INLET SET INLET_NUMBER = 'x'' OR ''1''=''1' WHERE rowid = 1")},

        // Much of everything.
        {"many_tables", refused, too_many,
         sql("BEGIN;" + many(3000, "CREATE TABLE T", " (A TEXT);") + "COMMIT")},
        {"many_indexes", refused, too_many,
         sql("BEGIN;" + many(400, "CREATE INDEX I", " ON INLET (STATION);") + "COMMIT")},
        {"many_columns", refused, "malformed database schema (T) - too many columns on T",
         sql("CREATE TABLE T (A TEXT" + many(1500, ", B", " TEXT") + ")")},
        {"long_definition", refused, "string or blob too big",
         sql("CREATE TABLE T (A TEXT DEFAULT '" + std::string(300'000, 'x') + "')")},
        {"long_name_of_a_view", refused, no_project_has("view " + std::string(40, 'V')),
         sql("CREATE VIEW " + std::string(50'000, 'V') + " AS SELECT 1")},
        {"deep_formula", refused,
         "malformed database schema (T) - Expression tree is too large (maximum depth 100)",
         sql("CREATE TABLE T (A TEXT CHECK (1" + many(500, "+", "") + "))")},
        {"text_of_3_megabytes", opens, "",
         sql("UPDATE INLET SET STATION = hex(zeroblob(1500000)) WHERE rowid = 2")},
        {"texts_of_3_megabytes", too_long, "",
         sql("UPDATE INLET SET STATION = hex(zeroblob(1500000)), OFFSET = STATION, "
             "INLET_NUMBER = rowid || hex(zeroblob(1500000))")},
        {"long_number", opens, "",
         sql("UPDATE INLET SET INLET_NUMBER = hex(zeroblob(40000)) WHERE rowid = 3")},
        {"many_inlets_without_a_text", opens, "",
         sql("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 50000)"
             " INSERT INTO INLET (INLET_NUMBER) SELECT NULL FROM n")},

        // Kinds of files.
        {"texts_of_two_bytes", opens, "",
         [](const std::string& path) {
             const std::string whole = run_sql(path, "SELECT group_concat(sql, ';') FROM sqlite_schema");
             std::filesystem::remove(path);
             run_sql(path,
                     "PRAGMA encoding = 'UTF-16le'; PRAGMA application_id = 1196247857;" + whole +
                         ";INSERT INTO PROJECT (PROJECT_ID, PROJECT_NAME, COUNTY, STATE, DESIGNER, UNITS) "
                         "VALUES ('P-1', 'Mill Road', 'Mobile', 'AL', 'A. Smith', 'ENGLISH');"
                         "INSERT INTO INLET (INLET_NUMBER) VALUES ('1')");
         }},
        {"file_that_cleans_itself", opens, "", sql("PRAGMA auto_vacuum = FULL; VACUUM")},
        {"two_tables_of_one_name", refused, "malformed database schema (INLET) - table INLET already exists",
         sql("PRAGMA writable_schema = ON; INSERT INTO sqlite_schema SELECT * FROM sqlite_schema WHERE name "
             "= 'INLET'")},
        {"definition_that_is_none", refused, "malformed database schema (T) - near \"TABEL\": syntax error",
         sql("PRAGMA writable_schema = ON; INSERT INTO sqlite_schema VALUES ('table', 'T', 'T', 2, 'CREATE "
             "TABEL T')")},
        {"statistics_of_nonsense", opens, "",
         sql("CREATE INDEX I ON INLET (STATION); ANALYZE; UPDATE sqlite_stat1 SET stat = '0 -1 "
             "99999999999999999999 x'")},
    };
}

}  // namespace gullymark::hostile
