#include "Gallery.h"

namespace forcelab::gallery {

namespace {

Steps Values(const char* first, const char* second, const char* third)
{
    return {Text("txtStress(0)", first), Text("txtStress(1)", second), Text("txtStress(2)", third)};
}

Steps Rotated(const char* degrees)
{
    return {Text("txtRotater", degrees), Click("cmdRotater")};
}

const Steps kCompute{Click("cmdMohr(0)")};
const Steps kPlaneStress = Steps{Click("optStressUnits(3)"), Click("optSigX(3)")} +
                           Values("50", "10", "40") + kCompute + Rotated("30");
const Steps kRosetteStresses{Click("chkRosette"), Click("optElasticModulus(3)"),
                             Text("txtElasticModulus", "200"), Text("txtPoisson", "0.3"),
                             Click("optUnitsStress(3)")};

// 70 and -30 MPa, the principal stresses of the first scene.
Steps Failure(const char* sigma1, const char* sigma2)
{
    return {Text("lblSigma1", sigma1), Text("lblSigma2", sigma2), Text("lblStressUnits", "3")};
}

Steps Theory(int index, const char* limit)
{
    const std::string option = "optFailure(" + std::to_string(index) + ")";
    return {Click(option), Text("txtYieldStress", limit), Click("cmdRefresh(0)")};
}

constexpr QSize kFailure{1064, 640};

} // namespace

std::vector<Scene> MenuScenes()
{
    return {
        {"main-menu", "frmMainMenu", kUsual, {}, {}},
        {"main-menu-small", "frmMainMenu", {820, 540}, {}, {}},
        {"about", "frmAbout", {}, {}, {}},
    };
}

std::vector<Scene> MohrScenes()
{
    const Steps strain = Steps{Menu("mnuPlaneStrain"), Click("optSigX(3)")} +
                         Values("400", "200", "300") + kCompute + Rotated("20");
    const Steps gauges45 = Steps{Menu("mnuRosette45")} + Values("340", "315", "110");
    const Steps gauges60 =
        Steps{Menu("mnuRosette60"), Click("optSigX(5)")} + Values("400", "150", "50");
    const Steps inertia =
        Steps{Menu("mnuMomentOfInertia")} + Values("120", "45", "-30") + kCompute + Rotated("15");
    return {
        {"mohr-empty", "frmMohr", kUsual, {}, {}},
        {"mohr-plane-stress", "frmMohr", kUsual, {}, kPlaneStress},
        {"mohr-plane-stress-small", "frmMohr", kSmall, {}, kPlaneStress},
        {"mohr-details", "frmMohr", kUsual, {}, kPlaneStress + Steps{Click("cmdMohr(1)")}},
        {"mohr-abs-max-shear",
         "frmMohr",
         kUsual,
         {},
         Steps{Click("optStressUnits(3)"), Click("chkAbsMaxShear")} + Values("80", "30", "20") +
             kCompute},
        {"mohr-plane-strain", "frmMohr", kUsual, {}, strain},
        {"mohr-rosette-45", "frmMohr", kUsual, {}, gauges45 + kCompute},
        {"mohr-rosette-60-stresses", "frmMohr", kUsual, {}, gauges60 + kRosetteStresses + kCompute},
        {"mohr-inertia", "frmMohr", kUsual, {}, inertia},
    };
}

std::vector<Scene> FailureScenes()
{
    const Steps state = Failure("70", "-30");
    return {
        {"failure-tresca", "frmFailure", kFailure, state, Theory(0, "250")},
        {"failure-von-mises", "frmFailure", kFailure, state, Theory(1, "80")},
        {"failure-rankine", "frmFailure", kFailure, state, Theory(2, "100")},
        {"failure-mohr", "frmFailure", kFailure, state,
         Steps{Click("optFailure(3)"), Text("txtCompression", "300")} + Theory(3, "100")},
    };
}

} // namespace forcelab::gallery
