#include "platform/system/process.h"

#include "platform/windows/paths.h"
#include "platform/windows/system_calls.h"

#include <cstdio>
#include <fcntl.h>
#include <io.h>
#include <memory>
#include <shellapi.h>

namespace halvenmoor::system {

void PrepareProcess() {
    for (std::FILE* const stream : {stdin, stdout, stderr}) ::_setmode(::_fileno(stream), _O_BINARY);
    ::SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
}

std::vector<std::string> Arguments(int, char**) {
    int count = 0;
    wchar_t** const all = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    const std::unique_ptr<wchar_t*, decltype([](wchar_t** list) { ::LocalFree(list); })> owner(all);
    std::vector<std::string> arguments;
    for (int i = 1; i < count; ++i) arguments.push_back(FromWide(all[i]));
    return arguments;
}

}  // namespace halvenmoor::system
