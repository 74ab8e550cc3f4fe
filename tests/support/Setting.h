#pragma once

#include "core/MainModule.h"
#include "core/NumericText.h"

#include <cstring>

namespace forcelab::test {

/// Sets the decimal comma where the test program was started with --comma, else the point.
inline void ApplySetting(int argc, char** argv)
{
    bool comma = false;
    for (int i = 1; i < argc; ++i) comma = comma || std::strcmp(argv[i], "--comma") == 0;
    Regional::Current = comma ? Regional{',', '.'} : Regional{'.', ','};
    MainModule::CommaDecimal = comma;
    MainModule::DecimalChar = comma ? 44 : 46;
}

} // namespace forcelab::test
