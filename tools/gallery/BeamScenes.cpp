#include "Gallery.h"

namespace forcelab::gallery {

namespace {

const char* const kForm = "frmBeamStuf";
const char* const kDiagrams = "frmBeamDiagrams";
const char* const kDetails = "frmDetails";

enum Type { kTwoSupports, kFixedLeft, kFixedRight };
enum Length { kFoot = 1, kMetre = 3 };
enum Unit { kLb, kKip, kNewton, kKn };
enum Load { kPointUp, kPointDown, kUniformUp, kUniformDown, kMomentCcw, kMomentCw };

std::string Of(const std::string& array, int index)
{
    return array + "(" + std::to_string(index) + ")";
}

Steps Beam(Type type, Length unit, const char* length, const char* left = "",
           const char* right = "")
{
    return {Click(Of("cmdBeamType", type)),   Text("txtBeamLength", length),
            Text("txtLeftSimple", left),      Text("txtRightSimple", right),
            Click(Of("optBeamLength", unit)), Click("cmdBeamDefineOK")};
}

/// What the boxes of a load are called, by its type divided by 2.
struct LoadBoxes {
    const char *Start, *Magnitude, *Unit;
};
constexpr LoadBoxes kBoxes[] = {{"txtConcentratedX", "txtConcentrated", "optForceUnits"},
                                {"txtStartUniform", "txtUniform", "optUniformLoadUnits"},
                                {"txtMomentX", "txtMoment", "optMomentUnits"}};

/// A load up to its last key; `live` makes it one of dead and live parts.
Steps Typed(Load type, const std::string& x, const std::string& end, const std::string& size,
            Unit unit, const std::string& live = "")
{
    const LoadBoxes& boxes = kBoxes[type / 2];
    Steps steps{Click(Of("optLoadType", type)), Text(boxes.Start, x),
                Text(Of(boxes.Magnitude, live.empty() ? 0 : 1), size), Click(Of(boxes.Unit, unit))};
    if (!end.empty()) steps.push_back(Text("txtEndUniform", end));
    if (!live.empty()) steps.push_back(Text(Of(boxes.Magnitude, 2), live));
    return steps;
}

Steps Entered(Load type, const std::string& x, const std::string& end, const std::string& size,
              Unit unit, const std::string& live = "")
{
    return Typed(type, x, end, size, unit, live) + Steps{Click("cmdEnterLoad")};
}

/// Loads of all kinds over 100 ft, between and beyond the supports.
Steps FortyLoads()
{
    Steps steps = Beam(kTwoSupports, kFoot, "100", "12", "88");
    for (int i = 0; i < 40; ++i) {
        const auto type = static_cast<Load>((i * 5 + i / 6) % 6);
        const bool uniform = type == kUniformUp || type == kUniformDown;
        const std::string end = uniform ? std::to_string(2 * i + 4 + i % 5 * 3) : "";
        const std::string size =
            uniform ? "0." + std::to_string(2 + i % 7) : std::to_string(3 + i * 7 % 23);
        steps = steps + Entered(type, std::to_string(2 * i + 1), end, size, kKip);
    }
    return steps;
}

Step MomentUnit(Unit unit)
{
    return Click(Of("optMomentUnits", unit));
}

Steps WithSection(const Steps& shape)
{
    return {Menu("mnuSectionProperties"),
            On("frmProperties", shape + Steps{Click("cmdShape(1)"), Click("cmdShape(2)")})};
}

const Steps kTee{Menu("mnuFlanged(4)"), Text("txtShape(0)", "8"), Text("txtShape(1)", "1"),
                 Text("txtShape(2)", "9"), Text("txtShape(3)", "1")};
const Steps kW14X90{Menu("mnuAISC(0)"), Text("lstSteelShapes", "W14X90")};

/// 10 in from the support: M = 100 in-kips and V = 10 kips on the T, 2 in above the centroid.
Steps Stresses(int view)
{
    return {Click("optForceUnits(1)"),  Click("optMomentUnits(1)"),
            Click("optStressUnits(1)"), Text("txtSpecificPoint", "0.8333"),
            Click("cmdSpecificPoint"),  Text("txtVM(2)", "8.3333"),
            Text("txtCoord(1)", "2"),   Click(Of("cmdVM", view))};
}

Steps Overhangs()
{
    return Beam(kTwoSupports, kMetre, "11", "1.5", "8") +
           Entered(kUniformDown, "2", "6", "2", kKn) + Entered(kPointDown, "0", "", "3", kKn) +
           Entered(kMomentCcw, "11", "", "5", kKn);
}

Scene Diagrams(const char* file, QSize size, const Steps& entry, const Steps& there = {})
{
    return {file, kForm, size, {}, entry, kDiagrams, there};
}

Scene Details(const char* file, int view)
{
    const Steps span = Beam(kTwoSupports, kFoot, "20", "0", "20") +
                       Entered(kPointDown, "10", "", "20", kKip) +
                       Steps{On(kDiagrams, {MomentUnit(kKip)})} + WithSection(kTee);
    return {file, kForm, kUsual, {}, span + Steps{Menu("mnuStress")}, kDetails, Stresses(view)};
}

} // namespace

std::vector<Scene> BeamScenes()
{
    const Steps simple = Beam(kTwoSupports, kMetre, "10", "0", "10") +
                         Entered(kUniformDown, "0", "10", "5", kKn) +
                         Entered(kPointDown, "3", "", "8", kKn);
    const Steps left = Beam(kFixedLeft, kMetre, "9") + Entered(kUniformDown, "0", "5", "8", kKn) +
                       Entered(kMomentCcw, "5", "", "50", kKn) +
                       Entered(kPointDown, "9", "", "12", kKn);
    const Steps right = Beam(kFixedRight, kFoot, "8") + Entered(kPointDown, "0", "", "2", kKip) +
                        Entered(kUniformDown, "4", "8", "0.5", kKip);
    const Steps factored = Beam(kTwoSupports, kFoot, "20", "0", "20") + Steps{Menu("mnuLF(1)")} +
                           Entered(kUniformDown, "0", "20", "2", kKip, "3");
    const Steps bent = Beam(kTwoSupports, kFoot, "10", "0", "10") +
                       Entered(kPointDown, "5", "", "1000", kLb) + WithSection(kW14X90) +
                       Steps{Click("cmdRefreshDiagrams")};
    const Steps limits{Click("optSame(1)"),     Click("optStressUnits(1)"), Text("txtASD(0)", "24"),
                       Text("txtASD(2)", "20"), Text("txtASD(4)", "14.4"),  Keep()};
    const Steps slope{Menu("mnuSlopeDeflection")};
    return {
        {"beam-entry", kForm, {}, {}, simple + Typed(kUniformDown, "2", "6", "1.5", kKn)},
        Diagrams("beam-simple", kUsual, simple, {MomentUnit(kKn)}),
        Diagrams("beam-simple-small", kSmall, simple, {MomentUnit(kKn), Menu("mnuExplain")}),
        Diagrams("beam-overhangs", kUsual, Overhangs()),
        Diagrams("beam-cantilever-left", kUsual, left),
        Diagrams("beam-cantilever-right", kUsual, right, {MomentUnit(kKip)}),
        Diagrams("beam-forty-loads", kUsual, FortyLoads()),
        Diagrams("beam-forty-loads-small", kSmall, FortyLoads()),
        Diagrams("beam-factored", kUsual, factored, {MomentUnit(kKip)}),
        Diagrams("beam-deflection-steel", kUsual, bent, slope),
        Details("beam-normal-stress", 0),
        Details("beam-shear-stress", 1),
        {"beam-allowable",
         kForm,
         {},
         {},
         simple + Steps{Answer("frmAllowable", limits), Menu("mnuAllowable")}},
    };
}

} // namespace forcelab::gallery
