#include "SteelText.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <functional>
#include <iterator>
#include <sstream>
#include <utility>

namespace forcelab::sections {

namespace {

/// Puts the text of a cell into a shape; false where it is not what the column holds.
using CellReader = std::function<bool(SteelShape&, const std::string&)>;

bool ReadFigure(const std::string& cell, double& figure)
{
    const char* end = cell.data() + cell.size();
    const auto read = std::from_chars(cell.data(), end, figure);
    return read.ec == std::errc() && read.ptr == end && std::isfinite(figure) && figure > 0;
}

bool ReadDesignation(SteelShape& shape, const std::string& cell)
{
    shape.Designation = cell;
    const auto printable = [](char c) { return c > ' ' && c <= '~'; };
    return cell.size() <= kDesignationLength && std::ranges::all_of(cell, printable);
}

bool ReadGroup(SteelShape& shape, const std::string& cell)
{
    if (cell.size() != 1) return false;
    shape.Group = cell[0] - '0';
    return shape.Group >= 1 && shape.Group <= 5;
}

/// What reads the cells under a heading; empty where the family has no such column.
CellReader ReaderOf(SteelFamily family, const std::string& heading)
{
    if (heading == "designation") return ReadDesignation;
    if (heading == "group" && kSteelFiles[family].HasGroup) return ReadGroup;
    const auto fields = FieldsOf(family);
    const auto field = std::ranges::find(fields, heading, &SteelField::Heading);
    if (field == fields.end()) return {};
    return [member = field->Member](SteelShape& shape, const std::string& cell) {
        return ReadFigure(cell, shape.*member);
    };
}

std::vector<std::string> Words(const std::string& line)
{
    std::istringstream stream(line);
    return {std::istream_iterator<std::string>(stream), {}};
}

/// Reads line after line; each function hands back what is wrong, or nothing.
class TableReader {
  public:
    explicit TableReader(SteelFamily family) : family_(family) {}

    std::string Take(const std::string& line)
    {
        const std::vector<std::string> words = Words(line);
        if (words.empty() || words.front().front() == '#') return {};
        return headings_.empty() ? TakeHeadings(words) : TakeShape(words);
    }
    std::vector<SteelShape> Shapes() && { return std::move(shapes_); }

  private:
    std::string TakeHeadings(const std::vector<std::string>& words)
    {
        for (const std::string& word : words) {
            readers_.push_back(ReaderOf(family_, word));
            if (!readers_.back() || std::ranges::count(words, word) > 1)
                return "unexpected heading " + word;
        }
        const std::size_t columns =
            FieldsOf(family_).size() + (kSteelFiles[family_].HasGroup ? 2 : 1);
        if (words.size() != columns) return "a heading is missing";
        headings_ = words;
        return {};
    }

    std::string TakeShape(const std::vector<std::string>& words)
    {
        if (words.size() != headings_.size()) return "the row has not a cell for each heading";
        SteelShape shape;
        shape.Family = family_;
        shape.RecordNumber = int(shapes_.size()) + 1;
        for (std::size_t i = 0; i < words.size(); ++i)
            if (!readers_[i](shape, words[i])) return headings_[i] + " cannot be " + words[i];
        shapes_.push_back(std::move(shape));
        return {};
    }

    SteelFamily family_;
    std::vector<std::string> headings_;
    std::vector<CellReader> readers_;
    std::vector<SteelShape> shapes_;
};

} // namespace

SteelText ReadSteelText(SteelFamily family, std::istream& text)
{
    TableReader reader(family);
    std::string line;
    for (int number = 1; std::getline(text, line); ++number) {
        const std::string problem = reader.Take(line);
        if (!problem.empty()) return {{}, "line " + std::to_string(number) + ": " + problem};
    }
    return {std::move(reader).Shapes(), {}};
}

std::string SteelTextName(SteelFamily family)
{
    const std::string_view file = kSteelFiles[family].Name;
    return std::string(file.substr(0, file.rfind('.'))) + ".txt";
}

} // namespace forcelab::sections
