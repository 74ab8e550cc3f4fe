// Packs the steel tables of data/steel into the files that the program reads.
//
//     pack_steel FOLDER_OF_TEXTS FOLDER_OF_TABLES

#include "SteelText.h"

#include <filesystem>
#include <fstream>
#include <iostream>

namespace {

using namespace forcelab::sections;
namespace fs = std::filesystem;

bool Complain(const fs::path& file, const std::string& problem)
{
    std::cerr << "pack_steel: " << file.string() << ": " << problem << '\n';
    return false;
}

bool Pack(SteelFamily family, const fs::path& texts, const fs::path& tables)
{
    const fs::path source = texts / SteelTextName(family);
    std::ifstream in(source);
    if (!in) return Complain(source, "cannot be read");
    const SteelText table = ReadSteelText(family, in);
    if (!table.Problem.empty()) return Complain(source, table.Problem);
    if (table.Shapes.empty()) return Complain(source, "holds no shapes");

    const fs::path target = tables / kSteelFiles[family].Name;
    const auto bytes = PackSteelTable(family, table.Shapes);
    std::ofstream out(target, std::ios::binary);
    out.write(reinterpret_cast<const char*>(bytes.data()), std::streamsize(bytes.size()));
    out.close();
    return out ? true : Complain(target, "cannot be written");
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::cerr << "pack_steel FOLDER_OF_TEXTS FOLDER_OF_TABLES\n";
        return 2;
    }
    std::error_code unmade;
    fs::create_directories(argv[2], unmade);
    for (int family = 0; family < kSteelFamilies; ++family)
        if (!Pack(SteelFamily(family), argv[1], argv[2])) return 1;
    return 0;
}
