#include "TrussFormTest.h"

#include <QAbstractButton>
#include <QAction>

#include <cmath>
#include <random>

namespace forcelab::truss {
namespace {

constexpr int kGestures = 2000;
constexpr std::uint32_t kDefaultSeed = 20252;

/// Drags, clicks and types at random. Whatever it does, the model stays a valid one.
class TrussMonkey : public TrussFormTest {
  protected:
    int Pick(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }

    Place Anywhere() { return {Pick(61) - 10.0, Pick(61) - 10.0}; }

    /// Answers whatever form comes up; a gesture may also open none.
    void AnswerModalForms()
    {
        for (const char* form : {"frmDefGrid", "frmTrussLoad", "frmTrussStress"}) {
            if (!screen::Forms::IsVisible(form)) continue;
            Use(form);
            const std::string typed = std::vector<std::string>{
                "0", "5", "1e+400", "-3", "", "abc", Local("2.5"), "1e+30", "12"}[Pick(9)];
            const std::string ok = Pick(2) == 0 ? "(0)" : "(1)";
            if (form == std::string("frmDefGrid")) {
                Find<QScrollBar>("vsbSpaces(0)").setValue(Pick(5));
                Find<QScrollBar>("vsbSpaces(1)").setValue(Pick(5));
                Type("txtSpacing(" + std::to_string(Pick(2)) + ")", typed);
                Click("cmdDefGrid" + ok);
            } else if (form == std::string("frmTrussLoad")) {
                Type("txtLoadMagnitude", typed);
                Click("cmdLoadDefine" + ok);
            } else {
                auto& grid = Find<screen::FlexGrid>("grdStress");
                QTest::keyClick(&grid, Qt::Key_F2);
                if (IsVisible("txtGridEdit")) Type("txtGridEdit", typed);
                Click("cmdStress" + ok);
            }
            screen::Forms::Hide(form);
            Use("frmTruss");
        }
    }

    void PressSomeKey()
    {
        constexpr Qt::Key keys[] = {Qt::Key_Left,  Qt::Key_Right, Qt::Key_Up,    Qt::Key_Down,
                                    Qt::Key_Space, Qt::Key_Space, Qt::Key_Escape};
        Press("picTruss", keys[Pick(7)]);
    }

    void PressSomeButton()
    {
        static const std::vector<std::string> kButtons{
            "cmdGridMake",       "cmdSpacing(0)",     "cmdSpacing(1)",     "cmdSpacing(1)",
            "optTrussDefine(0)", "optTrussDefine(1)", "optTrussDefine(2)", "optMakeOrTake(0)",
            "optMakeOrTake(0)",  "optMakeOrTake(1)",  "cmdExplain",        "cmdSpacing(2)"};
        const std::string& name = kButtons[std::size_t(Pick(int(kButtons.size())))];
        if (name == "cmdGridMake" && Pick(2) != 0) return;
        if (IsVisible(name) && IsEnabled(name)) Click(name);
    }

    void Gesture()
    {
        switch (Pick(6)) {
        case 0:
        case 1:
            return Drag(Anywhere(), Anywhere());
        case 2: {
            const Place from{10.0 * Pick(4), 10.0 * Pick(4)};
            return Drag(from, {10.0 * Pick(4), 10.0 * Pick(4)});
        }
        case 3:
            return PressSomeKey();
        case 4:
            return PressSomeButton();
        default:
            if (IsEnabled("mnuTrussStress") && Pick(3) == 0) Trigger("mnuTrussStress");
        }
    }

    void ExpectAValidModel(int step)
    {
        const TrussModel& model = CurrentTruss;
        ASSERT_GE(model.MemberCount, -1) << step;
        ASSERT_LE(model.MemberCount, kMaxMembers) << step;
        for (const TrussMember& member : model.Members()) {
            ASSERT_LT(member.FromPoint, member.ToPoint) << step;
            ASSERT_LT(member.ToPoint, model.GridPointCount) << step;
            ASSERT_EQ(model.GridPointBlocked[member.FromPoint], 0) << step;
        }
        for (const TrussGridPoint& point : model.GridPoints)
            ASSERT_TRUE(std::isfinite(point.LoadX) && std::isfinite(point.LoadY)) << step;
    }

    std::mt19937 random_{kDefaultSeed};
};

TEST_F(TrussMonkey, LeavesAValidModel)
{
    const char* given = std::getenv("FORCELAB_SEED");
    const auto seed = given ? static_cast<std::uint32_t>(std::stoul(given)) : kDefaultSeed;
    std::printf("seed %u (FORCELAB_SEED)\n", seed);
    random_.seed(seed);
    Messages->AcceptAny = true;
    LayGrid(3, 3);
    TheForm().resize(TheForm().minimumSizeHint()); // small pictures are painted faster
    QTimer answering;
    QObject::connect(&answering, &QTimer::timeout, [this] { AnswerModalForms(); });
    answering.start(0);
    for (int step = 0; step < kGestures; ++step) {
        if (!screen::Forms::IsVisible("frmTruss")) Open("frmTruss");
        Use("frmTruss");
        Gesture();
        ASSERT_NO_FATAL_FAILURE(ExpectAValidModel(step));
    }
    for (const MsgBox& box : Messages->Shown)
        EXPECT_TRUE(box.Title == "Forcelab" || box.Title == "Unstable Truss" ||
                    box.Title == "Statically Indeterminate Truss" ||
                    box.Title == "Truss Analysis Error")
            << box.Title;
}

} // namespace
} // namespace forcelab::truss
