#include "Gallery.h"

namespace forcelab::gallery {

std::vector<Scene> EquationScenes()
{
    // Column by column, down and up again; the unknowns lie between.
    const Steps columns{Key("fgElements", "2v-3v-2\t1^-1^1\t-1v2v2\t\t-3^-11^8\n"),
                        Click("cmdStiffness")};
    return {{"equations", "frmLinSolve", kSmall, {}, columns}};
}

} // namespace forcelab::gallery
