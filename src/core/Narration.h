#pragma once

#include <string>
#include <string_view>

namespace forcelab {

/// Builds the text of an explanation: headings, sentences and lines, which end in CrLf.
/// Lines of arithmetic come from `WriteLine`.
class Narration {
  public:
    Narration& Heading(std::string_view text);  ///< a line of its own with a blank line before it
    Narration& Sentence(std::string_view text); ///< goes on in the same paragraph, after a blank
    Narration& Line(std::string_view text);     ///< a line of its own
    Narration& Paragraph();                     ///< leaves an empty line
    [[nodiscard]] const std::string& Text() const { return text_; }

  private:
    void BreakLine();
    std::string text_;
};

/// "a × b".
std::string Times(std::string_view a, std::string_view b);
/// "a ÷ b".
std::string Divided(std::string_view a, std::string_view b);
/// The number with its unit: "12.5 MPa".
std::string WithUnit(std::string_view number, std::string_view unit);

} // namespace forcelab
