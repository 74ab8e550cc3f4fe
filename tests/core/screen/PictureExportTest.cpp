#include "core/screen/PictureForm.h"

#include <QClipboard>
#include <QMimeData>
#include <QSvgRenderer>

namespace forcelab::test {
namespace {

using SavedPictures = PictureBoxes;

TEST_F(SavedPictures, CopyingPutsTheImageOnTheClipboard)
{
    ChooseFromMenu("&Copy picture");
    const QMimeData* content = QApplication::clipboard()->mimeData();
    ASSERT_TRUE(content->hasImage());
    const QImage image = qvariant_cast<QImage>(content->imageData());
    EXPECT_EQ(image.size(), pic_->size() * 2);
    EXPECT_EQ(image.pixelColor(image.width() * 3 / 4, image.height() / 4), QColor(255, 0, 0));
    EXPECT_TRUE(QSvgRenderer(content->data("image/svg+xml")).isValid());
}

TEST_F(SavedPictures, SavesAsPng)
{
    const QString path = folder_.filePath("picture.png");
    Files->Answers = {path};
    ChooseFromMenu("Save as P&NG...");
    const QImage image(path);
    EXPECT_EQ(image.size(), pic_->size() * 2);
    EXPECT_EQ(image.pixelColor(image.width() * 3 / 4, image.height() / 4), QColor(255, 0, 0));
}

TEST_F(SavedPictures, SavesAsSvgWithTheEndingAdded)
{
    Files->Answers = {folder_.filePath("picture")};
    ChooseFromMenu("Save as &SVG...");
    QFile file(folder_.filePath("picture.svg"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray text = file.readAll();
    EXPECT_TRUE(text.contains("first line"));
    EXPECT_EQ(QSvgRenderer(text).viewBoxF().size(), QSizeF(pic_->size()));
}

TEST_F(SavedPictures, SavesAsPdfInItsOwnSize)
{
    const QString path = folder_.filePath("picture.pdf");
    Files->Answers = {path};
    ChooseFromMenu("Save as P&DF...");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    EXPECT_TRUE(bytes.startsWith("%PDF"));
    const QByteArray box = "/MediaBox [0 0 " + QByteArray::number(pic_->width() * 0.75, 'f', 0);
    EXPECT_TRUE(bytes.contains(box)) << box.toStdString();
}

TEST_F(SavedPictures, CancelSavesNothing)
{
    ChooseFromMenu("Save as P&NG...");
    EXPECT_EQ(Files->Asked, 1);
    EXPECT_TRUE(Messages->Shown.empty());
}

TEST_F(SavedPictures, AFileThatCannotBeWrittenIsReported)
{
    const QString path = folder_.filePath("no such folder/picture.");
    for (const char* ending : {"svg", "pdf", "png"}) {
        Expect({kExclamation, "Forcelab",
                "The picture could not be saved.\r\n" + (path + ending).toStdString()});
        Files->Answers.push_back(path + ending);
    }
    ChooseFromMenu("Save as &SVG...");
    ChooseFromMenu("Save as P&DF...");
    ChooseFromMenu("Save as P&NG...");
    EXPECT_FALSE(pic_->SaveTo(folder_.filePath("picture.bmp"))) << "an ending without a writer";
}

TEST_F(SavedPictures, AFaultWhileSavingWritesNoFile)
{
    form_->Faulty = true;
    const QString path = folder_.filePath("picture.pdf");
    EXPECT_FALSE(pic_->SaveTo(path));
    EXPECT_FALSE(QFile::exists(path));
    pic_->CopyToClipboard();
    const QImage image = qvariant_cast<QImage>(QApplication::clipboard()->mimeData()->imageData());
    EXPECT_EQ(image.size(), pic_->Image().size()) << "the last good picture is copied";
}

} // namespace
} // namespace forcelab::test
