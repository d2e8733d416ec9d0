#include "okna/Aplikacja.h"
#include <gtest/gtest.h>
#include <QFile>
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

/// A small desktop that nobody sees, unless another one is asked for.
void malyEkran(const QString& opis) {
    const QByteArray pulpit = qgetenv("QT_QPA_PLATFORM");
    if (!pulpit.isEmpty() && pulpit != "offscreen") return;
    QFile plik(opis);
    if (!plik.open(QIODevice::WriteOnly)) return;
    plik.write(
        R"({"screens": [{"name": "ekran", "x": 0, "y": 0, "width": 1280, "height": 720, "logicalDpi": 96,
                   "logicalBaseDpi": 96, "dpr": 1}]})");
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + opis.toUtf8());
}

} // namespace

/// Read by AddressSanitizer. Libraries below the windows keep caches for the life of the process, which the
/// leak check would report.
extern "C" const char* __asan_default_options() { return "detect_leaks=0"; }

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const QTemporaryDir ustawienia;
    malyEkran(ustawienia.filePath(QStringLiteral("ekran.json")));
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, ustawienia.path());
    testing::UnitTest::GetInstance()->listeners().Append(new BezPamieci);
    tornel::okna::Aplikacja program(argc, argv);
    // A failure in a slot fails the test; one that expects failures sets its own handler.
    program.ustawNaprawe([](const QString& komunikat) { ADD_FAILURE() << komunikat.toStdString(); });
    return RUN_ALL_TESTS();
}
