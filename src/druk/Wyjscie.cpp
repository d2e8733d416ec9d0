#include "druk/Wyjscie.h"
#include "common/Blad.h"
#include "common/Csv.h"
#include "common/Pliki.h"
#include "druk/Pisma.h"
#include "druk/PlotnoMalarza.h"
#include <algorithm>
#include <cmath>
#include <QBuffer>
#include <QDir>
#include <QImage>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>

namespace tornel::druk {

namespace {

constexpr int kRozdzielczoscPdf = 720;

[[noreturn]] void nieZapisano(const QString& plik, const QString& powod) {
    throw Blad(
        QStringLiteral("Nie można zapisać pliku „%1”: %2.").arg(QDir::toNativeSeparators(plik), powod));
}

/// The texts of a page with their places.
class PlotnoTekstu final : public Plotno {
public:
    struct Linia {
        int x, y;
        QString tekst;
    };
    void tekst(const Miejsce& m, const QString& tekst, Pismo, Ulozenie) override {
        if (!tekst.trimmed().isEmpty())
            linie.append({static_cast<int>(std::lround(m.x)), static_cast<int>(std::lround(m.y)), tekst});
    }
    /// The boxes of one field read as one text.
    void kratki(const Miejsce& m, const QString& znaki, Pismo pismo, int, int) override {
        tekst(m, znaki, pismo, Ulozenie::Lewo);
    }
    void linia(const Miejsce&, bool) override {}
    void ramka(const Miejsce&) override {}
    void obraz(const Miejsce&, const QString&) override {}

    QList<Linia> linie;
};

} // namespace

void ustawSkale(QPainter& malarz, double rozdzielczosc) {
    const double skala = rozdzielczosc / 25.4 / kJednostekWMm;
    malarz.scale(skala, skala);
    malarz.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
}

void MalujStrone(QPainter& malarz, double rozdzielczosc, const Uklad& uklad, int strona) {
    malarz.save();
    ustawSkale(malarz, rozdzielczosc);
    PlotnoMalarza plotno(malarz);
    uklad.rysuj(strona, plotno);
    malarz.restore();
}

bool ZapiszPdf(const Uklad& uklad, const QString& plik, const PostepStron& postep) {
    QSaveFile cel(plik);
    if (!cel.open(QIODevice::WriteOnly)) nieZapisano(plik, cel.errorString());
    {
        QPdfWriter pdf(&cel);
        pdf.setResolution(kRozdzielczoscPdf);
        pdf.setTitle(uklad.opis().tytul);
        pdf.setCreator(QStringLiteral("Tornel"));
        const auto polozenie = uklad.opis().strona.poziomo ? QPageLayout::Landscape : QPageLayout::Portrait;
        pdf.setPageLayout({QPageSize(QPageSize::A4), polozenie, {}});
        QPainter malarz;
        if (!malarz.begin(&pdf)) nieZapisano(plik, cel.errorString());
        ustawSkale(malarz, kRozdzielczoscPdf);
        PlotnoMalarza plotno(malarz);
        for (int s = 0; s < uklad.stron(); ++s) {
            if (s > 0 && !pdf.newPage()) nieZapisano(plik, cel.errorString());
            uklad.rysuj(s, plotno);
            if (cel.error() != QFileDevice::NoError) nieZapisano(plik, cel.errorString());
            if (postep && !postep(s + 1)) {
                cel.cancelWriting();
                return false;
            }
        }
    }
    if (!cel.commit()) nieZapisano(plik, cel.errorString());
    return true;
}

QStringList ZapiszPng(const Uklad& uklad, const QString& katalog, int rozdzielczosc) {
    if (!QDir().mkpath(katalog)) nieZapisano(katalog, QStringLiteral("nie można utworzyć katalogu"));
    const auto piksele = [&](double mm) { return static_cast<int>(std::lround(mm / 25.4 * rozdzielczosc)); };
    QStringList pliki;
    for (int s = 0; s < uklad.stron(); ++s) {
        QImage obraz(piksele(uklad.opis().strona.szer()), piksele(uklad.opis().strona.wys()),
                     QImage::Format_RGB32);
        obraz.fill(Qt::white);
        QPainter malarz(&obraz);
        MalujStrone(malarz, rozdzielczosc, uklad, s);
        malarz.end();
        const QString plik = QDir(katalog).filePath(
            QStringLiteral("%1-%2.png").arg(uklad.opis().nazwa).arg(s + 1, 2, 10, QLatin1Char('0')));
        QBuffer bajty;
        obraz.save(&bajty, "PNG");
        ZapiszPlik(plik, bajty.data());
        pliki.append(plik);
    }
    return pliki;
}

QString TekstWydruku(const Uklad& uklad) {
    QString wynik;
    for (int s = 0; s < uklad.stron(); ++s) {
        PlotnoTekstu plotno;
        uklad.rysuj(s, plotno);
        std::ranges::stable_sort(plotno.linie, {}, [](const auto& l) { return std::pair(l.y, l.x); });
        for (const auto& l : plotno.linie)
            wynik += QStringLiteral("%1 %2,%3 %4\n")
                         .arg(s + 1)
                         .arg(l.x, 3, 10, QLatin1Char('0'))
                         .arg(l.y, 3, 10, QLatin1Char('0'))
                         .arg(QString(l.tekst).replace(QChar(0x00A0), QLatin1Char(' ')));
    }
    return wynik;
}

bool Uklad::zawiera(int strona, const QString& tekst) const {
    PlotnoTekstu plotno;
    rysuj(strona, plotno);
    return std::ranges::any_of(plotno.linie,
                               [&](const auto& l) { return l.tekst.contains(tekst, Qt::CaseInsensitive); });
}

QByteArray CsvWydruku(const Uklad& uklad) {
    const QList<QString>& nazwy = uklad.opis().nazwyPol;
    QByteArray wynik;
    const auto wiersz = [&](const auto& pole) {
        bool pierwsze = true;
        for (int i = 0; i < nazwy.size(); ++i) {
            if (nazwy[i].isEmpty()) continue;
            if (!std::exchange(pierwsze, false)) wynik += ';';
            wynik += PoleCsv(pole(i)).toUtf8();
        }
        wynik += '\n';
    };
    wiersz([&](int i) { return nazwy[i]; });
    for (int w = 0; w < uklad.wiersze().ile(); ++w)
        wiersz([&](int i) {
            const Wartosc wartosc = uklad.wiersze().pole(w, i);
            const auto* kwota = std::get_if<Waluta>(&wartosc);
            return kwota ? TekstKwoty(*kwota) : tekstPola(wartosc, Format::Tekst);
        });
    return wynik;
}

} // namespace tornel::druk
