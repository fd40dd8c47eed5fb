#include "core/patterns.h"

#include "base/failure.h"
#include "base/text/numbers.h"

namespace halvenmoor {

const std::vector<std::string>& Elements(const PatternList& list) {
    if (IsArrayEmpty(list)) throw Failure(failure::TypeMismatch, "Type mismatch");
    if (list->size() > kMaxPatterns) text::ThrowOverflow();
    return *list;
}

}  // namespace halvenmoor
