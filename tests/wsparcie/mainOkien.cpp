#include "okna/Aplikacja.h"
#include <gtest/gtest.h>
#include <QSettings>
#include <QTemporaryDir>

namespace {

/// Each test finds a desktop that remembers nothing.
class BezPamieci : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo& /*test*/) override {
        QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Tornel"),
                  QStringLiteral("Tornel"))
            .clear();
    }
};

} // namespace

/// Read by AddressSanitizer. Libraries below the windows keep caches for the life of the process, which the
/// leak check would report.
extern "C" const char* __asan_default_options() { return "detect_leaks=0"; }

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir ustawienia;
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, ustawienia.path());
    testing::UnitTest::GetInstance()->listeners().Append(new BezPamieci);
    tornel::okna::Aplikacja program(argc, argv);
    // A failure in a slot fails the test; one that expects failures sets its own handler.
    program.ustawNaprawe([](const QString& komunikat) { ADD_FAILURE() << komunikat.toStdString(); });
    return RUN_ALL_TESTS();
}
