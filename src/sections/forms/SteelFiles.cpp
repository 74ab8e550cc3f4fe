#include "sections/forms/SteelFiles.h"

#include "core/screen/Controls.h"

#include <QFile>

#include <cstdint>

namespace forcelab::sections {

std::optional<SteelTables> ReadSteelFiles(const std::string& folder)
{
    SteelTables tables;
    for (int family = 0; family < kSteelFamilies; ++family) {
        QFile file(screen::Q(folder) + screen::Q(kSteelFiles[family].Name));
        if (!file.open(QIODevice::ReadOnly)) return std::nullopt;
        const QByteArray bytes = file.readAll();
        const auto* first = reinterpret_cast<const std::uint8_t*>(bytes.constData());
        tables[family] = ReadSteelTable(static_cast<SteelFamily>(family),
                                        {first, static_cast<std::size_t>(bytes.size())});
    }
    return tables;
}

} // namespace forcelab::sections
