#include "store/windows.h"

namespace gullymark::store {

Windows windows;

}  // namespace gullymark::store
