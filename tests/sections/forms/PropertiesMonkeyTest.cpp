#include "PropertiesFormTest.h"
#include "support/Monkey.h"

#include <cmath>

namespace forcelab::sections {
namespace {

using test::Monkey;

constexpr int kSteps = 2000;
constexpr std::uint32_t kSeed = 20252;

const test::MonkeyGround kGround{{"0",        "1",    "-5",   "12.5", "1e+400", "abc",
                                  "",         "3e+6", "1e-6", "90",   "45",     "1e+6",
                                  "0.3",      "8",    "1,5",  "-",    "2",      "1e+200",
                                  "0.000001", "4",    "10",   "0.5",  "999999"},
                                 {},
                                 {"Section Properties Error"},
                                 {}};

/// Whatever it does, no number that is not finite may stand in the record.
class PropertiesMonkey : public test::MonkeyTest<PropertiesFormTest> {
  protected:
    PropertiesMonkey() : MonkeyTest(kSeed, kGround) { RegisterEmpty("frmMohr"); }

    void ExpectSound() override
    {
        for (int row = 0; row <= 18; ++row)
            for (int column = 1; column <= 8; ++column)
                ASSERT_TRUE(std::isfinite(CurrentSection.Record.At(row, column)))
                    << row << ", " << column;
        computed_ += CurrentSection.SectionComputed ? 1 : 0;
    }

    void PaintSomething()
    {
        auto* swatch = Ape.AnyVisible<SwatchBox>(TheForm());
        if (!swatch) return;
        static constexpr Qt::Key kKeys[] = {Qt::Key_A, Qt::Key_B, Qt::Key_Space, Qt::Key_X};
        if (Ape.OneIn(2)) return QTest::keyClick(swatch, kKeys[Ape.Pick(std::size(kKeys))]);
        QTest::mouseClick(swatch, Ape.OneIn(2) ? Qt::LeftButton : Qt::RightButton);
    }

    void FillAndCompute()
    {
        for (QWidget* widget : TheForm().findChildren<QWidget*>())
            if (auto* box = dynamic_cast<screen::TextBox*>(widget);
                box && box->isVisible() && !box->isReadOnly())
                box->setText(QString::number(1 + Ape.Pick(9)));
        Find<QAbstractButton>("cmdShape(1)").click();
    }

    int computed_ = 0;
};

TEST_F(PropertiesMonkey, DoesNoHarm)
{
    const auto paint = [this] { PaintSomething(); };
    const auto compute = [this] { FillAndCompute(); };
    Run("frmProperties", kSteps,
        {Does(&Monkey::Type), Does(&Monkey::Type), Does(&Monkey::Press), Does(&Monkey::Press),
         Does(&Monkey::PressKey), Does(&Monkey::Choose), Does(&Monkey::Trigger), paint, compute});
    EXPECT_GT(computed_, kSteps / 20);
}

} // namespace
} // namespace forcelab::sections
