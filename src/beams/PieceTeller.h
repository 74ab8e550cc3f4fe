#pragma once

#include "beams/BeamTeller.h"

#include <string>
#include <vector>

namespace forcelab::beams {

/// The stretch between two neighbouring key points, on which the load is even.
struct Piece {
    double From, To;       ///< key points
    bool ShearJumps;       ///< at To
    bool MomentJumps;      ///< at To
    double Load;           ///< sum of the uniform loads, lb/in, downward positive
    std::vector<int> Rows; ///< of those loads
};

/// A force or moment that makes a diagram jump.
struct Jump {
    std::string Name; ///< "A", "1P"
    bool Adds;        ///< or is subtracted
    double Amount;    ///< of what is named, lb or lb-in
};

/// Tells how the shear diagram grows out of the loads and the moment diagram out of the shear.
class PieceTeller : public BeamTeller {
  public:
    using BeamTeller::BeamTeller;

    [[nodiscard]] std::vector<Piece> Pieces() const;
    [[nodiscard]] std::vector<Jump> ShearJumpsAt(double x) const;
    [[nodiscard]] std::vector<Jump> MomentJumpsAt(double x) const;

    /// What a point of the beam does to a diagram; nothing where nothing acts.
    void TellShearJump(double x) const;
    void TellMomentJump(double x) const;
    /// From the left end of a piece to its right end.
    void TellShear(const Piece& piece) const;
    void TellMoment(const Piece& piece) const;

  private:
    /// A stretch with shear of one sign; V and M as drawn.
    struct Stretch {
        double From, To, ShearFrom, ShearTo, MomentFrom;
        std::string MomentName; ///< of the moment at its end
    };
    [[nodiscard]] bool IsHere(double a, double x) const;
    [[nodiscard]] double Settled(double x) const;
    [[nodiscard]] BeamValues RightOf(double x) const { return At(Settled(x)); }
    [[nodiscard]] std::string Name(const std::string& letter, double x, bool left) const;
    void TellJump(const std::string& letter, double x, const std::vector<Jump>& jumps, double right,
                  bool moment) const;
    [[nodiscard]] std::string LoadName(const Piece& piece) const;
    void TellArea(const Stretch& stretch, bool even) const;
    void TellZeroShear(const Piece& piece, double shear) const;
    double TellStretch(const Stretch& stretch, bool even) const;
};

} // namespace forcelab::beams
