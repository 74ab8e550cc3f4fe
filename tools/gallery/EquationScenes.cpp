#include "Gallery.h"

namespace forcelab::gallery {

std::vector<Scene> EquationScenes()
{
    // Column by column, down and up again; the unknowns lie between.
    const Steps columns{Key("fgElements", "2v-3v-2\t1^-1^1\t-1v2v2\t\t-3^-11^8\n"),
                        Click("cmdStiffness")};
    // The last cell of the largest grid in a window that is too small for it.
    const Steps ten{Text("updnElements", "10"), Key("fgElements", "\t\t\t\t\t\t\t\t\t\t\t"
                                                                  "vvvvvvvvv7\n")};
    return {{"equations", "frmLinSolve", kSmall, {}, columns},
            {"equations-scrolled", "frmLinSolve", {640, 400}, {}, ten}};
}

} // namespace forcelab::gallery
