#include "engine/condition.h"

namespace gullymark::engine::formula {

Spelling Says::spelled() const {
    return spell_operation(" = ", comparison,
                           spell_words(column_name(column), open_inlet.text(column), column),
                           spell_words("", words));
}

}  // namespace gullymark::engine::formula
