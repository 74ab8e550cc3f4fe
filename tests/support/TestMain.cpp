#include "support/Setting.h"

#include <gmock/gmock.h>

int main(int argc, char** argv)
{
    testing::InitGoogleMock(&argc, argv);
    forcelab::test::ApplySetting(argc, argv);
    return RUN_ALL_TESTS();
}
