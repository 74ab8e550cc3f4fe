#include "core/forms/SysInfo.h"

#include "core/screen/Services.h"

#include <algorithm>

namespace forcelab {

namespace {
constexpr std::size_t kLongestValue = 1024;
} // namespace

std::optional<std::string> GetKeyValue(const std::string& key, const std::string& name)
{
    auto value = screen::Services::Current().Registry->Read(key, name);
    if (value) value->resize(std::min(value->find('\0'), std::min(value->size(), kLongestValue)));
    return value;
}

std::optional<std::string> SystemInformationTool()
{
    if (auto path = GetKeyValue(R"(SOFTWARE\Microsoft\Shared Tools\MSINFO)", "PATH")) return path;
    if (auto folder = GetKeyValue(R"(SOFTWARE\Microsoft\Shared Tools Location)", "MSINFO"))
        return *folder + R"(\MSINFO32.EXE)";
    return std::nullopt;
}

} // namespace forcelab
