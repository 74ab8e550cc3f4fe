#include "core/LabelPlacer.h"

#include "core/RecordingPicture.h"
#include "support/Near.h"

using namespace forcelab;

namespace {

LabelWish Wish(PicturePoint at, const std::string& text, double angle = 0)
{
    LabelWish wish;
    wish.Anchors = {{at, angle}};
    wish.Text = {{text, LabelPart::Kind::Plain}};
    return wish;
}

bool Overlap(const RecordingPicture::PixelBox& a, const RecordingPicture::PixelBox& b)
{
    return a.X1 < b.X2 && b.X1 < a.X2 && a.Y1 < b.Y2 && b.Y1 < a.Y2;
}

TEST(LabelPlacer, PutsALabelOnThePreferredSide)
{
    RecordingPicture pic(200, 200);
    LabelPlacer placer(pic);
    ASSERT_TRUE(placer.Place(Wish({100, 100}, "right", 0)));
    ASSERT_TRUE(placer.Place(Wish({100, 50}, "above", 1.5707963)));
    const auto boxes = pic.TextBoxes();
    EXPECT_GT(boxes[0].X1, 100);
    EXPECT_LT(boxes[0].X1, 108);
    EXPECT_LT(boxes[1].Y2, 50);
}

TEST(LabelPlacer, KeepsLabelsOfOnePointApartAndOnTheSheet)
{
    RecordingPicture pic(200, 120);
    LabelPlacer placer(pic);
    for (int i = 0; i < 6; ++i) ASSERT_TRUE(placer.Place(Wish({195, 60}, "label")));
    const auto boxes = pic.TextBoxes();
    ASSERT_EQ(boxes.size(), 6U);
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        EXPECT_GE(boxes[i].X1, 0);
        EXPECT_LE(boxes[i].X2, 200);
        for (std::size_t j = i + 1; j < boxes.size(); ++j)
            EXPECT_FALSE(Overlap(boxes[i], boxes[j]));
    }
}

TEST(LabelPlacer, MovesOffALine)
{
    RecordingPicture pic(200, 200);
    LabelPlacer placer(pic);
    placer.KeepOffLine({0, 100}, {200, 100});
    ASSERT_TRUE(placer.Place(Wish({100, 100}, "label", 0)));
    const auto box = pic.TextBoxes().front();
    EXPECT_TRUE(box.Y2 < 100 || box.Y1 > 100);
}

TEST(LabelPlacer, StaysOutOfAReservedBox)
{
    RecordingPicture pic(200, 200);
    LabelPlacer placer(pic);
    placer.Reserve({90, 140}, {200, 60}); // all that lies right of the point
    ASSERT_TRUE(placer.Place(Wish({100, 100}, "label", 0)));
    const auto box = pic.TextBoxes().front();
    EXPECT_TRUE(box.X2 < 90 || box.Y2 < 60 || box.Y1 > 140);
}

TEST(LabelPlacer, MovesOffACircle)
{
    RecordingPicture pic(400, 400);
    LabelPlacer placer(pic);
    placer.KeepOffCircle({200, 200}, 100);
    ASSERT_TRUE(placer.Place(Wish({300, 200}, "a long label", 1.5707963)));
    const auto box = pic.TextBoxes().front();
    const auto distance = [](double x, double y) { return std::hypot(x - 200, y - 200); };
    const bool inside = distance(box.X1, box.Y1) < 100 && distance(box.X2, box.Y1) < 100;
    const bool outside = distance(box.X1, box.Y2) > 100 && distance(box.X2, box.Y2) > 100 &&
                         distance(box.X1, box.Y1) > 100;
    EXPECT_TRUE(inside || outside);
}

TEST(LabelPlacer, TakesTheBestOfSeveralPoints)
{
    RecordingPicture pic(200, 200);
    LabelPlacer placer(pic);
    ASSERT_TRUE(placer.Place(Wish({20, 100}, "first")));
    LabelWish wish = Wish({20, 100}, "second");
    wish.Anchors.push_back({{20, 180}, 0});
    ASSERT_TRUE(placer.Place(wish));
    EXPECT_GT(pic.TextBoxes()[1].Y1, 150);
}

TEST(LabelPlacer, LeavesOutWhatHasNoRoomAndShrinksWhatIsNeeded)
{
    RecordingPicture pic(60, 20);
    pic.FontSize = 10;
    LabelPlacer placer(pic);
    LabelWish wish = Wish({5, 10}, "123456789"); // 72 pixels wide at 10 points
    wish.Needed = false;
    EXPECT_FALSE(placer.Place(wish));
    EXPECT_TRUE(pic.Operations().empty());
    wish.Needed = true;
    EXPECT_TRUE(placer.Place(wish));
    EXPECT_LE(pic.TextBoxes().front().X2, 60);
    EXPECT_TRUE(test::Near(pic.FontSize, 10));
}

/// Lines close the near places. The way up is the shortest, but another label stands in it.
TEST(LabelPlacer, ALeaderStrikesNoLabelThrough)
{
    RecordingPicture pic(300, 300);
    LabelPlacer placer(pic);
    for (int y = 111; y <= 250; y += 7) placer.KeepOffLine({0, 1.0 * y}, {200, 1.0 * y});
    ASSERT_TRUE(placer.Place(Wish({150, 111}, "free")));
    EXPECT_LT(pic.TextBoxes().front().Y2, 111);
    LabelPlacer closed(pic);
    for (int y = 111; y <= 250; y += 7) closed.KeepOffLine({0, 1.0 * y}, {200, 1.0 * y});
    closed.Reserve({0, 88}, {195, 101});
    ASSERT_TRUE(closed.Place(Wish({150, 111}, "closed")));
    EXPECT_GT(pic.TextBoxes().back().X1, 195);
}

TEST(LabelPlacer, LabelsSideBySideAreToldApart)
{
    RecordingPicture pic(300, 13);
    LabelPlacer placer(pic);
    for (const double x : {100.0, 105.0, 110.0}) ASSERT_TRUE(placer.Place(Wish({x, 6}, "label")));
    const auto boxes = pic.TextBoxes();
    for (std::size_t i = 0; i < boxes.size(); ++i)
        for (std::size_t j = 0; j < i; ++j) {
            const double apart = std::max(boxes[i].X1 - boxes[j].X2, boxes[j].X1 - boxes[i].X2);
            EXPECT_GT(apart, 5.9);
        }
}

/// A faint line may rather be stood on than the preferred side be left.
TEST(LabelPlacer, MayStandOnAFaintLine)
{
    const auto crosses = [](double weight) {
        RecordingPicture pic(300, 300);
        LabelPlacer placer(pic);
        placer.KeepOffLine({100, 0}, {100, 300}, weight);
        placer.KeepOffLine({200, 0}, {200, 300}, weight);
        EXPECT_TRUE(placer.Place(Wish({150, 150}, "a longer label")));
        const auto box = pic.TextBoxes().front();
        return box.X1 < 200 && box.X2 > 200;
    };
    EXPECT_TRUE(crosses(0.1));
    EXPECT_FALSE(crosses(1));
}

TEST(LabelPlacer, RestoresTheSettings)
{
    RecordingPicture pic(100, 100);
    pic.ForeColor = Rgb(1, 2, 3);
    LabelPlacer placer(pic);
    LabelWish wish = Wish({50, 50}, "label");
    wish.Ink = Rgb(200, 0, 0);
    placer.Place(wish);
    EXPECT_EQ(pic.ForeColor, Rgb(1, 2, 3));
    EXPECT_EQ(pic.Operations().back().Fore, Rgb(200, 0, 0));
}

} // namespace
