#include "Gallery.h"

namespace forcelab::gallery {

namespace {

const Steps kCompute{Click("cmdShape(1)")};

Steps Shape(const std::string& menu, const std::vector<std::string>& dimensions)
{
    Steps steps{Menu(menu)};
    for (std::size_t i = 0; i < dimensions.size(); ++i)
        steps.push_back(Text("txtShape(" + std::to_string(i) + ")", dimensions[i]));
    return steps;
}

Steps Steel(const std::string& menu, const std::string& designation)
{
    return {Menu(menu), Text("lstSteelShapes", designation)};
}

/// A steel plate on a wooden stem.
Steps Composite()
{
    return Shape("mnuFlanged(4)", {"6", "0.5", "10", "6"}) +
           Steps{Click("chkElasticModulus"),
                 Click("optElasticModulus(1)"),
                 Text("txtElasticModulus(1)", "1600"),
                 Text("txtElasticModulus(2)", "29000"),
                 Key("picShape(0)", "B"),
                 Key("picShape(1)", "A")};
}

const Steps kTee = Shape("mnuFlanged(4)", {"8", "1", "9", "1"});

Scene Report(const char* file, const Steps& entry, const Steps& there)
{
    return {file, "frmProperties", kUsual, {}, entry + kCompute, "frmCrossSection", there};
}

} // namespace

std::vector<Scene> SectionScenes()
{
    const char* const form = "frmProperties";
    const Steps turned =
        Shape("mnuFlanged(5)", {"5.625", "0.75", "6.875", "0.75"}) + kCompute +
        Steps{Click("optShapeRotate(1)"), Click("cmdShape(0)"), Click("cmdShape(1)")};
    return {
        {"section-choose", form, kUsual, {}, {}},
        {"section-rectangle", form, kUsual, {}, Shape("mnuRectangular(0)", {"4", "10"}) + kCompute},
        {"section-flanged",
         form,
         kUsual,
         {},
         Shape("mnuFlanged(0)", {"6", "1", "8", "0.75", "10", "1.5"}) + kCompute},
        {"section-i", form, kUsual, {}, Shape("mnuFlanged(2)", {"6", "0.5", "12", "0.375"})},
        {"section-tee-small", form, kSmall, {}, kTee + kCompute},
        {"section-l-rotated", form, kUsual, {}, turned},
        {"section-hat",
         form,
         kUsual,
         {},
         Shape("mnuFlanged(7)", {"8", "0.5", "6", "0.5", "3", "0.5"}) + kCompute},
        {"section-double-c",
         form,
         kUsual,
         {},
         Shape("mnuDouble(2)", {"3", "0.5", "8", "0.375", "10"}) + kCompute},
        {"section-box", form, kUsual, {}, Shape("mnuRectangular(1)", {"6", "10", "5", "9"})},
        {"section-pipe", form, kUsual, {}, Shape("mnuCircular(1)", {"10.75", "10.02"}) + kCompute},
        {"section-composite", form, kUsual, {}, Composite() + kCompute},
        {"section-steel", form, kUsual, {}, Steel("mnuAISC(0)", "W14X90") + kCompute},
        {"section-steel-double-angle", form, kUsual, {}, Steel("mnuAISC(4)", "2L12X12X1-1/4")},
        {"section-specified", form, kUsual, {}, Steps{Menu("mnuOtherShapes")}},
    };
}

std::vector<Scene> ReportScenes()
{
    return {
        Report("report-tee", kTee, {}),
        Report("report-tee-plastic", kTee, {Menu("mnuDetailsPlastic")}),
        Report("report-composite", Composite(), {}),
        Report("report-steel", Steel("mnuAISC(0)", "W14X90"), {}),
    };
}

} // namespace forcelab::gallery
