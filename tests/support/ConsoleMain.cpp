#include "tests/support/DefaultSignals.h"
#include "tests/support/FailOnAssert.h"
#include "tests/support/OwnDisplay.h"

#include <wx/init.h>

int main(int argc, char** argv)
{
    TakeDefaultSignals();
    TakeOwnDisplay(argv);
    testing::InitGoogleTest(&argc, argv);
    const wxInitializer toolkit;
    FailOnAssert();
    return RUN_ALL_TESTS();
}
