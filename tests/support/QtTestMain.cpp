#include "support/Setting.h"

#include <QApplication>
#include <QStyleFactory>

#include <gmock/gmock.h>

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("XDG_RUNTIME_DIR", "");
    testing::InitGoogleMock(&argc, argv);
    forcelab::test::ApplySetting(argc, argv);
    const QApplication application(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    return RUN_ALL_TESTS();
}
