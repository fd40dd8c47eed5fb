#include "base/failure.h"

#include <cstdio>
#include <cstdlib>

namespace halvenmoor {

namespace {

void PrintLine(std::string_view what, std::string_view file, int number, const char* description) noexcept {
    std::fprintf(stderr, "halvenmoor: failed to %.*s: \"%.*s\": %d %s\n", static_cast<int>(what.size()),
                 what.data(), static_cast<int>(file.size()), file.data(), number, description);
}

}  // namespace

void TraceFailure(std::string_view what, std::string_view file) noexcept {
    if (std::getenv("HALVENMOOR_TRACE") == nullptr) return;
    try {
        throw;
    } catch (const Failure& failure) {
        PrintLine(what, file, failure.Number(), failure.what());
    } catch (const std::exception& exception) {
        PrintLine(what, file, 0, exception.what());
    } catch (...) {
        PrintLine(what, file, 0, "unknown exception");
    }
}

}  // namespace halvenmoor
