// Draws a picture at several sizes: ikony PICTURE.svg .../SIZExSIZE/apps/NAME.png ...
#include <cstdio>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QSvgRenderer>

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication program(argc, argv);
    const QStringList argumenty = QCoreApplication::arguments();
    QSvgRenderer obraz(argumenty.value(1));
    if (!obraz.isValid() || argumenty.size() < 3) {
        std::fputs("ikony PICTURE.svg .../SIZExSIZE/apps/NAME.png ...\n", stderr);
        return 2;
    }
    static const QRegularExpression rozmiarWSciezce(QStringLiteral("/(\\d+)x\\1/"));
    for (const QString& sciezka : argumenty.mid(2)) {
        const int bok = rozmiarWSciezce.match(sciezka).captured(1).toInt();
        QImage ikona(bok, bok, QImage::Format_ARGB32);
        ikona.fill(Qt::transparent);
        QPainter malarz(&ikona);
        malarz.setRenderHint(QPainter::Antialiasing);
        obraz.render(&malarz);
        malarz.end();
        if (bok == 0 || !QDir().mkpath(QFileInfo(sciezka).path()) || !ikona.save(sciezka)) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(sciezka));
            return 1;
        }
    }
    return 0;
}
