#include "cli/Konsola.h"
#include <algorithm>
#include <cstdio>
#include <QFile>
#include <QGuiApplication>

int main(int argc, char** argv) {
    // File names and output are UTF-8 whatever the machine's locale, without a word from the library.
    qputenv("LC_ALL", "C.UTF-8");
    // Pages are drawn without a screen; every other command does without fonts and pictures.
    const bool strony =
        std::any_of(argv, argv + argc, [](const char* a) { return std::string_view(a) == "wydruk"; });
    if (strony) qputenv("QT_QPA_PLATFORM", "offscreen");
    const std::unique_ptr<QCoreApplication> program(strony ? new QGuiApplication(argc, argv)
                                                           : new QCoreApplication(argc, argv));
    QFile wyjscie, bledy;
    if (!wyjscie.open(stdout, QIODevice::WriteOnly) ||
        !bledy.open(stderr, QIODevice::WriteOnly | QIODevice::Unbuffered))
        return 1;
    return tornel::cli::Konsola(QCoreApplication::arguments().mid(1), QCoreApplication::applicationDirPath(),
                                wyjscie, bledy);
}
