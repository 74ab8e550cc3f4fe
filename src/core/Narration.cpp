#include "core/Narration.h"

#include "core/MainModule.h"

namespace forcelab {

using MainModule::CrLf;

void Narration::BreakLine()
{
    if (!text_.empty() && !text_.ends_with(CrLf)) text_ += CrLf;
}

Narration& Narration::Paragraph()
{
    BreakLine();
    if (!text_.empty() && !text_.ends_with(CrLf + CrLf)) text_ += CrLf;
    return *this;
}

Narration& Narration::Heading(std::string_view text)
{
    return Paragraph().Line(text);
}

Narration& Narration::Sentence(std::string_view text)
{
    if (!text_.empty() && !text_.ends_with(CrLf)) text_ += ' ';
    text_ += text;
    return *this;
}

Narration& Narration::Line(std::string_view text)
{
    BreakLine();
    text_ += text;
    text_ += CrLf;
    return *this;
}

std::string Times(std::string_view a, std::string_view b)
{
    return std::string(a) + MainModule::TimesText + std::string(b);
}

std::string Divided(std::string_view a, std::string_view b)
{
    return std::string(a) + MainModule::DivideText + std::string(b);
}

std::string WithUnit(std::string_view number, std::string_view unit)
{
    std::string text(number);
    if (!unit.empty()) text += ' ';
    return text += unit;
}

} // namespace forcelab
