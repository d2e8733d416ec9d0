#include "okna/Aplikacja.h"
#include <gtest/gtest.h>

/// Read by AddressSanitizer. Libraries below the windows keep caches for the life of the process, which the
/// leak check would report.
extern "C" const char* __asan_default_options() { return "detect_leaks=0"; }

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    tornel::okna::Aplikacja program(argc, argv);
    // A failure in a slot fails the test; one that expects failures sets its own handler.
    program.ustawNaprawe([](const QString& komunikat) { ADD_FAILURE() << komunikat.toStdString(); });
    return RUN_ALL_TESTS();
}
