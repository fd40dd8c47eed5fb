#include "core/patterns.h"

#include "core/failure.h"
#include "core/text/numbers.h"

namespace halvenmoor {

const std::vector<std::string>& Elements(const PatternList& list) {
    if (IsArrayEmpty(list)) throw Failure(failure::TypeMismatch, "Type mismatch");
    text::CheckedInt16(static_cast<long long>(list->size()));
    return *list;
}

}  // namespace halvenmoor
