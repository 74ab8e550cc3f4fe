#include "Gallery.h"

namespace forcelab::gallery {

namespace {

const char* const kForm = "frmTruss";
const char* const kPicture = "picTruss";
const Steps kCompute{Click("cmdSpacing(1)")};

struct Bar {
    QPointF From, To;
};

Steps Grid(int spacesX, int spacesY, const char* spacingX, const char* spacingY)
{
    return {Answer("frmDefGrid",
                   {Text("vsbSpaces(0)", std::to_string(spacesX)),
                    Text("vsbSpaces(1)", std::to_string(spacesY)), Text("txtSpacing(0)", spacingX),
                    Text("txtSpacing(1)", spacingY), Click("cmdDefGrid(0)")}),
            Click("cmdGridMake")};
}

Steps Members(const std::vector<Bar>& bars)
{
    Steps steps{Click("optTrussDefine(0)")};
    for (const Bar& bar : bars) steps.push_back(Drag(kPicture, bar.From, bar.To));
    return steps;
}

/// A pin at one joint and a roller on level ground at another.
Steps PinAndRoller(QPointF pin, QPointF roller)
{
    return {Click("optTrussDefine(1)"), Drag(kPicture, pin, pin - QPointF(0, 1)),
            Drag(kPicture, pin, pin - QPointF(1, 0)),
            Drag(kPicture, roller, roller - QPointF(0, 1))};
}

Steps Down(QPointF joint, const char* size)
{
    return {Click("optTrussDefine(2)"),
            Answer("frmTrussLoad", {Text("txtLoadMagnitude", size), Click("cmdLoadDefine(0)")}),
            Drag(kPicture, joint, joint - QPointF(0, 1))};
}

/// A bridge of bays of 5 by 5, its diagonals falling toward the middle; loaded at the lower chord.
Steps Bridge(int bays)
{
    std::vector<Bar> bars;
    bars.reserve(std::size_t(4) * bays);
    const auto low = [](int i) { return QPointF(5.0 * i, 0); };
    const auto high = [](int i) { return QPointF(5.0 * i, 5); };
    for (int i = 0; i < bays; ++i) bars.push_back({low(i), low(i + 1)});
    for (int i = 1; i < bays - 1; ++i) bars.push_back({high(i), high(i + 1)});
    for (int i = 1; i < bays; ++i) bars.push_back({low(i), high(i)});
    for (int i = 1; i < bays / 2; ++i) {
        bars.push_back({high(i), low(i + 1)});
        bars.push_back({high(bays - i), low(bays - i - 1)});
    }
    bars.push_back({low(0), high(1)});
    bars.push_back({low(bays), high(bays - 1)});
    Steps steps = Grid(bays, 1, "5", "5") + Members(bars) + PinAndRoller(low(0), low(bays));
    for (int i = 1; i < bays; ++i) steps = steps + Down(low(i), i == bays / 2 ? "40" : "20");
    return steps;
}

/// A roof on five panel points of the lower chord.
Steps Roof()
{
    return Grid(6, 3, "2", "1.5") +
           Members({{{0, 0}, {4, 0}},
                    {{4, 0}, {8, 0}},
                    {{8, 0}, {12, 0}},
                    {{0, 0}, {2, 1.5}},
                    {{2, 1.5}, {4, 3}},
                    {{4, 3}, {6, 4.5}},
                    {{6, 4.5}, {8, 3}},
                    {{8, 3}, {10, 1.5}},
                    {{10, 1.5}, {12, 0}},
                    {{2, 1.5}, {4, 0}},
                    {{4, 0}, {4, 3}},
                    {{4, 0}, {6, 4.5}},
                    {{8, 0}, {6, 4.5}}}) +
           PinAndRoller({0, 0}, {12, 0}) + Down({4, 3}, "12.5") + Down({6, 4.5}, "25") +
           Steps{Click("optTrussDefine(0)")};
}

Steps Triangle()
{
    return Grid(3, 2, "10.0", "10.0") +
           Members({{{0, 0}, {20, 0}}, {{0, 0}, {10, 10}}, {{20, 0}, {10, 10}}}) +
           PinAndRoller({0, 0}, {20, 0}) + Down({10, 10}, "10");
}

/// Two panels, one without its diagonal; a third support condition too many makes up the count.
Steps Mechanism()
{
    return Grid(3, 2, "4", "4") +
           Members({{{0, 0}, {4, 0}},
                    {{4, 0}, {8, 0}},
                    {{0, 4}, {4, 4}},
                    {{4, 4}, {8, 4}},
                    {{0, 0}, {0, 4}},
                    {{4, 0}, {4, 4}},
                    {{8, 0}, {8, 4}},
                    {{0, 0}, {4, 4}}}) +
           PinAndRoller({0, 0}, {8, 0}) + Steps{Drag(kPicture, {8, 0}, {9, 0})} + Down({8, 4}, "6");
}

/// Nearly as many members as a truss may have: 99.
Steps NinetyNine()
{
    std::vector<Bar> bars;
    for (double x = 0; x < 24; ++x) {
        bars.insert(bars.end(), {{{x, 0}, {x, 1}}, {{x, 0}, {x + 1, 0}}, {{x, 1}, {x + 1, 1}}});
        bars.push_back(x < 12 ? Bar{{x, 1}, {x + 1, 0}} : Bar{{x, 0}, {x + 1, 1}});
    }
    bars.push_back({{24, 0}, {24, 1}});
    bars.insert(bars.end(), {{{24, 0}, {25, 0}}, {{24, 1}, {25, 0}}});
    return Grid(25, 2, "1", "1") + Members(bars) + PinAndRoller({0, 0}, {24, 0}) +
           Down({12, 1}, "100") + Down({6, 1}, "25.75");
}

} // namespace

std::vector<Scene> TrussScenes()
{
    const Steps tooMany{Click("optTrussDefine(1)"), Drag(kPicture, {20, 0}, {25, 0})};
    const Steps areas{Key("grdStress", "0.4\n"), Click("cmdStress(0)"), Keep()};
    return {
        {"truss-new", kForm, kUsual, {}, {}},
        {"truss-grid",
         kForm,
         kUsual,
         {},
         {Answer("frmDefGrid", {Keep(), Click("cmdDefGrid(1)")}), Click("cmdGridMake")}},
        {"truss-load",
         kForm,
         kUsual,
         {},
         Triangle() + Steps{Answer("frmTrussLoad", {Keep(), Click("cmdLoadDefine(1)")}),
                            Drag(kPicture, {20, 0}, {25, 0})}},
        {"truss-triangle", kForm, kUsual, {}, Triangle() + kCompute},
        {"truss-bridge", kForm, kUsual, {}, Bridge(6) + kCompute},
        {"truss-bridge-small", kForm, kSmall, {}, Bridge(6) + kCompute},
        {"truss-bridge-editing", kForm, kUsual, {}, Bridge(6)},
        {"truss-roof", kForm, kUsual, {}, Roof() + Steps{Hold(kPicture, {6, 4.5}, {11.4, 3.9})}},
        {"truss-mechanism",
         kForm,
         kUsual,
         {},
         Mechanism() + Steps{Message("Truss Analysis Error")} + kCompute +
             Steps{Tick("timMotion", 25)}},
        {"truss-indeterminate",
         kForm,
         kUsual,
         {},
         Triangle() + tooMany + Steps{Message("Statically Indeterminate Truss", true)} + kCompute},
        {"truss-stresses",
         kForm,
         kUsual,
         {},
         Bridge(6) + kCompute + Steps{Answer("frmTrussStress", areas), Menu("mnuTrussStress")}},
        {"truss-99", kForm, kUsual, {}, NinetyNine() + kCompute},
        {"truss-99-editing", kForm, kUsual, {}, NinetyNine()},
    };
}

} // namespace forcelab::gallery
