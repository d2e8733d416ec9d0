#include "cli/Konsola.h"
#include <cstdio>
#include <QCoreApplication>
#include <QFile>

int main(int argc, char** argv) {
    // File names and output are UTF-8 whatever the machine's locale, without a word from the library.
    qputenv("LC_ALL", "C.UTF-8");
    const QCoreApplication program(argc, argv);
    QFile wyjscie, bledy;
    if (!wyjscie.open(stdout, QIODevice::WriteOnly) ||
        !bledy.open(stderr, QIODevice::WriteOnly | QIODevice::Unbuffered))
        return 1;
    return tornel::cli::Konsola(QCoreApplication::arguments().mid(1), QCoreApplication::applicationDirPath(),
                                wyjscie, bledy);
}
