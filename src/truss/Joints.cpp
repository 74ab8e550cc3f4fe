#include "truss/TrussSolver.h"

#include <algorithm>
#include <limits>

namespace forcelab::truss {

namespace {

constexpr int kCapitals = 26;
constexpr int kCapitalShift = 64;   // joint 1 is "A"
constexpr int kSmallShift = 70;     // joint 27 is "a"
constexpr int kLastPrintable = 126; // "~"
constexpr int kFirstExtended = 256; // letters with accents, as many as there can be joints

/// One pass at a gap; True where something was swapped.
bool SwapAtGap(std::span<short> list, int count, int gap)
{
    bool swapped = false;
    for (int i = 0; i + gap < count; ++i)
        if (list[i] > list[i + gap]) {
            std::swap(list[i], list[i + gap]);
            swapped = true;
        }
    return swapped;
}

int Sign(float difference)
{
    return (difference > 0) - (difference < 0);
}

/// Where the members of each joint lie. A member's midpoint is on the side of its other end.
void TallySides(const TrussModel& model, JointList& joints)
{
    const auto tally = [&](int point, int other) {
        const TrussGridPoint& a = model.GridPoints[point];
        const TrussGridPoint& b = model.GridPoints[other];
        const int joint = joints.GridToJoint[point];
        joints.JointSense[0][joint] += static_cast<short>(Sign(b.X - a.X));
        joints.JointSense[1][joint] += static_cast<short>(Sign(b.Y - a.Y));
    };
    for (const TrussMember& member : model.Members()) {
        tally(member.FromPoint, member.ToPoint);
        tally(member.ToPoint, member.FromPoint);
    }
}

/// Three times for each other joint with a support in the same direction; a tally that would pass
/// 16 bits stays.
void WeighSupported(const TrussModel& model, JointList& joints, short TrussGridPoint::*support,
                    std::vector<short>& sense)
{
    std::vector<int> supported;
    for (int joint = 1; joint <= joints.JointCount; ++joint)
        if (model.GridPoints[joints.JointGridPoint[joint]].*support == 1)
            supported.push_back(joint);
    constexpr int kLimit = std::numeric_limits<short>::max();
    for (const int joint : supported)
        for (std::size_t other = 1; other < supported.size(); ++other) {
            const int tripled = 3 * sense[joint];
            if (std::abs(tripled) <= kLimit) sense[joint] = static_cast<short>(tripled);
        }
}

} // namespace

int SortUniqueJoints(std::span<short> list, int count)
{
    for (int gap = count / 2; gap > 0; gap /= 2)
        while (SwapAtGap(list, count, gap)) {
        }
    const auto last = list.begin() + count;
    return static_cast<int>(std::unique(list.begin(), last) - list.begin());
}

JointList BuildJointList(const TrussModel& model)
{
    JointList joints;
    joints.JointGridPoint.push_back(0); // index 0 is unused
    for (const TrussMember& member : model.Members()) {
        joints.JointGridPoint.push_back(member.FromPoint);
        joints.JointGridPoint.push_back(member.ToPoint);
    }
    const int ends = static_cast<int>(joints.JointGridPoint.size()) - 1;
    joints.JointCount = SortUniqueJoints(std::span(joints.JointGridPoint).subspan(1), ends);
    joints.JointGridPoint.resize(joints.JointCount + 1);
    joints.GridToJoint.assign(model.GridPointCount + 1, 0);
    for (int joint = 1; joint <= joints.JointCount; ++joint)
        joints.GridToJoint[joints.JointGridPoint[joint]] = static_cast<short>(joint);
    for (auto& sense : joints.JointSense) sense.assign(joints.JointCount + 1, 0);
    TallySides(model, joints);
    WeighSupported(model, joints, &TrussGridPoint::SupportX, joints.JointSense[0]);
    WeighSupported(model, joints, &TrussGridPoint::SupportY, joints.JointSense[1]);
    return joints;
}

std::string JointNameOf(int joint)
{
    int code = joint + (joint <= kCapitals ? kCapitalShift : kSmallShift);
    if (code <= kLastPrintable) return {static_cast<char>(code)};
    code += kFirstExtended - kLastPrintable - 1;
    return {static_cast<char>(0xC0 | (code >> 6)), static_cast<char>(0x80 | (code & 0x3F))};
}

} // namespace forcelab::truss
