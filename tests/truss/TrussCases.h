#pragma once

#include "support/Near.h"
#include "truss/TrussEditor.h"
#include "truss/TrussSolver.h"

#include <random>

namespace forcelab::truss::test {

using forcelab::test::Local;
using forcelab::test::Near;

/// A grid point by its column and row.
struct At {
    int I = 0;
    int J = 0;
};

inline TrussModel Grid(int spacesX, int spacesY, float spacingX = 10, float spacingY = 10)
{
    TrussModel model;
    model.GridSpacesX = spacesX;
    model.GridSpacesY = spacesY;
    model.GridSpacingX = spacingX;
    model.GridSpacingY = spacingY;
    MakeTrussGridCoords(model);
    return model;
}

inline TrussGridPoint& PointOf(TrussModel& model, At at)
{
    return model.GridPoints[model.PointAt(at.I, at.J)];
}

inline MemberRefusal Add(TrussModel& model, At from, At to)
{
    return AddMember(model, model.PointAt(from.I, from.J), model.PointAt(to.I, to.J));
}

inline void Pin(TrussModel& model, At at)
{
    PointOf(model, at).SupportX = PointOf(model, at).SupportY = 1;
}

inline void Load(TrussModel& model, At at, float x, float y)
{
    PointOf(model, at).LoadX = x;
    PointOf(model, at).LoadY = y;
}

/// (0,0), (20,0), (10,10), pin and roller, 10 down at the top.
inline TrussModel Triangle()
{
    TrussModel model = Grid(3, 3);
    Add(model, {0, 0}, {2, 0});
    Add(model, {0, 0}, {1, 1});
    Add(model, {2, 0}, {1, 1});
    Pin(model, {0, 0});
    PointOf(model, {2, 0}).SupportY = 1;
    Load(model, {1, 1}, 0, -10);
    return model;
}

/// (0,0), (6,0), (2,2), (2,0), 10 down at (2,0), pin at the left, roller at the right.
inline TrussModel KingPost()
{
    TrussModel model = Grid(3, 1, 2, 2);
    for (const auto& [a, b] : {std::pair<At, At>{{0, 0}, {1, 0}},
                               {{1, 0}, {3, 0}},
                               {{0, 0}, {1, 1}},
                               {{1, 1}, {3, 0}},
                               {{1, 0}, {1, 1}}})
        Add(model, a, b);
    Pin(model, {0, 0});
    PointOf(model, {3, 0}).SupportY = 1;
    Load(model, {1, 0}, 0, -10);
    return model;
}

/// Four bars around a square with pins at both lower corners.
inline TrussModel Square()
{
    TrussModel model = Grid(3, 3);
    Add(model, {0, 0}, {1, 0});
    Add(model, {0, 0}, {0, 1});
    Add(model, {1, 0}, {1, 1});
    Add(model, {0, 1}, {1, 1});
    Pin(model, {0, 0});
    Pin(model, {1, 0});
    Load(model, {0, 1}, 5, 0);
    return model;
}

/// Parallel chords with one diagonal a bay: 4 * bays + 1 members, 2 * bays + 2 joints.
inline TrussModel ParallelChords(int bays, float load = -10)
{
    TrussModel model = Grid(bays, 1);
    for (int i = 0; i < bays; ++i) {
        Add(model, {i, 0}, {i, 1});
        Add(model, {i, 0}, {i + 1, 0});
        Add(model, {i, 1}, {i + 1, 1});
        if (2 * i < bays)
            Add(model, {i, 1}, {i + 1, 0});
        else
            Add(model, {i, 0}, {i + 1, 1});
    }
    Add(model, {bays, 0}, {bays, 1});
    Pin(model, {0, 0});
    PointOf(model, {bays, 0}).SupportY = 1;
    for (int i = 1; i < bays; ++i) Load(model, {i, 1}, 0, load);
    return model;
}

/// A truss grown from a triangle by two members a joint, with loads on some of its joints. Every
/// joint but the last few hangs on two members only, whatever order the members then have.
inline TrussModel RandomTruss(unsigned seed, int joints)
{
    std::mt19937 random(seed);
    TrussModel model = Grid(6, 5, 4, 3);
    std::vector<At> taken;
    const auto anyPoint = [&] { return At{int(random() % 7), int(random() % 6)}; };
    const auto connect = [&](At added, At first, At second) {
        const TrussModel before = model;
        const double cross =
            (first.I - added.I) * (second.J - added.J) - (first.J - added.J) * (second.I - added.I);
        if (cross == 0 || Add(model, added, first) != MemberRefusal::None ||
            Add(model, added, second) != MemberRefusal::None)
            return model = before, false;
        return true;
    };
    while (taken.size() < 3) {
        model = Grid(6, 5, 4, 3);
        taken = {anyPoint(), anyPoint()};
        if (Add(model, taken[0], taken[1]) != MemberRefusal::None) continue;
        const At third = anyPoint();
        if (connect(third, taken[0], taken[1])) taken.push_back(third);
    }
    for (int tries = 0; int(taken.size()) < joints && tries < 2000; ++tries) {
        const At added = anyPoint();
        if (model.IsJoint(model.PointAt(added.I, added.J))) continue;
        if (connect(added, taken[random() % taken.size()], taken[random() % taken.size()]))
            taken.push_back(added);
    }
    Pin(model, taken[0]);
    TrussGridPoint& roller = PointOf(model, taken[1]);
    (taken[0].I != taken[1].I ? roller.SupportY : roller.SupportX) = 1;
    for (const At at : taken)
        if (random() % 2 == 0)
            Load(model, at, float(int(random() % 41) - 20), float(int(random() % 41) - 20) / 2);
    Load(model, taken[2], 3, -12.5F);
    return model;
}

} // namespace forcelab::truss::test
