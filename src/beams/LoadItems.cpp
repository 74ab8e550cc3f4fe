#include "beams/LoadDiagram.h"
#include "beams/LoadPlan.h"

#include "beams/DiagramFrame.h"
#include "core/NumericText.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace forcelab::beams {

namespace {

constexpr int kMostDecimals = 4;
constexpr double kSameNumber = 1e-9; // of its size

LoadItem::What WhatOf(int family)
{
    using enum LoadItem::What;
    return family == kPointLoad ? Point : family == kUniformLoad ? Uniform : Moment;
}

Colour ColourOf(int family)
{
    return family == kPointLoad     ? kPointColour
           : family == kUniformLoad ? kUniformColour
                                    : kMomentColour;
}

LoadItem ItemOf(const BeamRecord& beam, int row, int loadCase)
{
    const int type = beam.LoadType[row];
    const int family = FamilyOf(type);
    LoadItem item;
    item.Is = WhatOf(family);
    item.Row = row;
    // A load that ends before it starts acts the other way, and is drawn as it acts.
    const bool backward = family == kUniformLoad && beam.LoadX[row][2] < beam.LoadX[row][1];
    item.Below = (type == kPointUp || type == kUniformUp) != backward;
    item.Turned = type == kMomentCw;
    item.X1 = std::min(beam.LoadX[row][1], beam.LoadX[row][2]);
    item.X2 = std::max(beam.LoadX[row][1], beam.LoadX[row][2]);
    item.Name = beam.LoadName[row];
    item.Text = item.Name + " = " + LoadSizeText(beam, row, loadCase);
    item.Ink = ColourOf(family);
    return item;
}

/// Gives each uniform load of a side the lane nearest to the beam that is free along its length.
void AssignLanes(std::vector<LoadItem>& items, bool below)
{
    std::vector<LoadItem*> placed;
    for (LoadItem& item : items) {
        if (item.Is != LoadItem::What::Uniform || item.Below != below) continue;
        const auto meets = [&](const LoadItem* other) {
            return other->Lane == item.Lane && item.X1 < other->X2 && other->X1 < item.X2;
        };
        while (std::any_of(placed.begin(), placed.end(), meets)) ++item.Lane;
        placed.push_back(&item);
    }
}

LoadItem Reaction(LoadItem::What what, bool atA, double x, double value, const std::string& size)
{
    const bool force = what == LoadItem::What::ReactionForce;
    LoadItem item;
    item.Is = what;
    item.AtA = atA;
    item.Below = force;
    item.Turned = value < 0;
    item.X1 = item.X2 = x;
    item.Name = item.Text = std::string(force ? "" : "M") + (atA ? "A" : "B") + " = " + size;
    item.Ink = kReactionColour;
    return item;
}

void AddReactions(std::vector<LoadItem>& items, const BeamRecord& beam,
                  const BeamReactions& reactions, const DiagramUnits& units, int c)
{
    const auto add = [&](bool atA, double x, double force, double moment, bool wall) {
        using enum LoadItem::What;
        items.push_back(Reaction(ReactionForce, atA, x, force,
                                 ForceText(std::abs(force), units) + " " +
                                     std::string(kForceUnits.at(units.Force))));
        if (!wall) return;
        items.push_back(Reaction(ReactionMoment, atA, x, moment,
                                 MomentText(std::abs(moment), units) + " " +
                                     std::string(kMomentUnits.at(units.Moment))));
    };
    const bool simple = beam.SupportType == kTwoSupports;
    if (simple || beam.SupportType == kFixedLeft)
        add(true, beam.SupportA, reactions.ReactionA[c], reactions.MomentA[c], !simple);
    if (simple || beam.SupportType == kFixedRight)
        add(false, beam.SupportB, reactions.ReactionB[c], reactions.MomentB[c], !simple);
}

} // namespace

std::string LoadSizeText(const BeamRecord& beam, int row, int loadCase)
{
    const double unit = beam.LoadUnitFactor[row][2] > 0 ? beam.LoadUnitFactor[row][2] : 1;
    const double size = std::abs(beam.LoadMagnitude[row][loadCase] / unit);
    int decimals = 1;
    const auto loses = [size](int places) {
        const double scaled = size * std::pow(10.0, places);
        return std::abs(scaled - std::round(scaled)) > kSameNumber * std::max(1.0, scaled);
    };
    while (decimals < kMostDecimals && loses(decimals)) ++decimals;
    return FormatValue(size, decimals, true).Joined() + " " +
           std::string(MagnitudeUnit(beam.LoadClass[row], beam.LoadUnitIndex[row][2]));
}

std::vector<LoadItem> CollectItems(const BeamRecord& beam, const BeamReactions& reactions,
                                   const DiagramUnits& units, int loadCase)
{
    std::vector<LoadItem> items;
    for (int row = 1; row <= beam.LoadCount; ++row) items.push_back(ItemOf(beam, row, loadCase));
    AssignLanes(items, false);
    AssignLanes(items, true);
    if (beam.LoadCount > 0) AddReactions(items, beam, reactions, units, loadCase);
    return items;
}

} // namespace forcelab::beams
