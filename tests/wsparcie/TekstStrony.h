// The text of a page, a line for what stands at one height: easier to read than an element a line.
#pragma once
#include "common/Liczby.h"
#include "common/Pliki.h"
#include "druk/Wyjscie.h"
#include "wsparcie/Przestrzen.h"
#include <gtest/gtest.h>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

namespace tornel::testy {

/// Page by page; "027  10 Płaca zasadnicza | 79 1 660,00": the height, then each text behind its place from
/// the left, mm.
inline QList<QStringList> stronyWydruku(const Uklad& uklad) {
    static const QRegularExpression element(QStringLiteral("^(\\d+) (\\d+),(\\d+) (.*)$"));
    QList<QStringList> wynik(uklad.stron());
    QString miejsce; // page and height
    for (const QString& linia : TekstWydruku(uklad).split(QLatin1Char('\n'))) {
        const auto czesci = element.match(linia);
        if (!czesci.hasMatch()) continue;
        QStringList& strona = wynik[czesci.captured(1).toInt() - 1];
        const QString tekst =
            QString::number(czesci.captured(2).toInt()) + QLatin1Char(' ') + czesci.captured(4);
        const QString tutaj = czesci.captured(1) + QLatin1Char(' ') + czesci.captured(3);
        if (tutaj == miejsce)
            strona.last() += QStringLiteral(" | ") + tekst;
        else
            strona.append(czesci.captured(3) + QStringLiteral("  ") + tekst);
        miejsce = tutaj;
    }
    return wynik;
}

/// Compares the page with the file `nazwa` beside the calling test, in the folder "wzorce". With
/// TORNEL_WZORCE set in the environment the file is written instead: what changed is then read before it is
/// stored.
inline void porownajZWzorcem(const char* plikTestu, const QString& nazwa, const Uklad& uklad,
                             int strona = 1) {
    const QString plik = QFileInfo(QString::fromUtf8(plikTestu)).path() + QStringLiteral("/wzorce/") + nazwa +
                         QStringLiteral(".txt");
    const QStringList linie = stronyWydruku(uklad).value(strona - 1);
    if (qEnvironmentVariableIsSet("TORNEL_WZORCE")) {
        ZapiszPlik(plik, (linie.join(QLatin1Char('\n')) + QLatin1Char('\n')).toUtf8());
        return;
    }
    ASSERT_TRUE(QFile::exists(plik)) << plik.toStdString();
    const QStringList wzorzec = CzytajTekst(plik).trimmed().split(QLatin1Char('\n'));
    for (qsizetype i = 0; i < std::max(linie.size(), wzorzec.size()); ++i)
        EXPECT_EQ(linie.value(i).toStdString(), wzorzec.value(i).toStdString())
            << nazwa.toStdString() << ", line " << i + 1;
}

/// The first amount on the first of the lines that holds the caption; nothing without such a line.
inline std::optional<Waluta> kwotaZa(const QStringList& linie, const QString& podpis) {
    static const QRegularExpression kwota(QStringLiteral("\\| \\d+ (-?[\\d ]+,\\d\\d)(?: \\||$)"));
    for (const QString& linia : linie) {
        if (!linia.contains(podpis)) continue;
        if (const auto m = kwota.match(linia.mid(linia.indexOf(podpis))); m.hasMatch())
            return CzytajKwote(m.captured(1));
    }
    return std::nullopt;
}

} // namespace tornel::testy
