// Forms: fields at their places over the picture, boxes and paragraphs that never grow, originals without
// the picture.
#include "druk/Formularz.h"
#include "druk/Pisma.h"
#include "druk/Wyjscie.h"
#include "wsparcie/Przestrzen.h"
#include <gtest/gtest.h>

namespace tornel::testy {

namespace {

using namespace Qt::StringLiterals;

/// The text of the fields of one row on a form at (10, 20) of the paper.
QString tekstFormularza(std::span<const PoleFormularza> pola, const QList<Wartosc>& wiersz,
                        Tlo tlo = Tlo::Oryginal) {
    static constexpr NapisFormularza napisy[] = {{{0, 0, 50, 4}, u"podpis pola"}};
    const Formularz formularz{u":/formularze/przelew.svg", 186, 128, napisy, pola};
    OpisWydruku opis{.nazwa = u"proba"_s, .tytul = u"Próba"_s};
    ulozFormularze(opis, {{{&formularz, 10, 20, {{{60, 0, 40, 4}, u"odcinek"}}}}, {{&formularz, 10, 20}}},
                   tlo);
    return TekstWydruku(
        Uklad(std::move(opis), std::make_shared<WierszeWPamieci>(QList<QList<Wartosc>>{wiersz})));
}

TEST(Formularz, EachKindOfFieldStandsAtItsPlace) {
    static constexpr PoleFormularza pola[] = {
        {0, {0, 1, 60, 5}, Format::Kwota, Ulozenie::Prawo},
        wKratkach(0, {0, 11, 50, 5}, 10, Format::Zlote, Ulozenie::Prawo),
        wKratkach(0, {55, 11, 10, 5}, 2, Format::Grosze),
        wKratkach(1, {0, 21, 80, 5}, 8, Format::CyfryDaty),
        wKratkach(2, {0, 31, 20, 5}, 4), // longer than its boxes: shown whole across them
    };
    const QString tekst =
        tekstFormularza(pola, {Waluta::zSurowej(12345000), QDate(2001, 4, 5), u"12345-6"_s});
    const char* strona = "010,021 1 234,50\n"
                         "010,031 1234\n"
                         "065,031 50\n"
                         "010,041 05042001\n"
                         "010,051 12345-6\n";
    QStringList strony[2];
    for (const QString& linia : tekst.split(u'\n', Qt::SkipEmptyParts))
        strony[linia.startsWith(u'1') ? 0 : 1].append(linia.mid(2) + u'\n');
    for (const QStringList& linie : strony) EXPECT_EQ(linie.join(QString()).toStdString(), strona);
}

TEST(Formularz, APictureHasItsCaptionsOnEveryPageAndAnOriginalHasNone) {
    static constexpr PoleFormularza pola[] = {{0, {0, 11, 60, 5}}};
    EXPECT_EQ(tekstFormularza(pola, {u"Nowak"_s}, Tlo::Obraz), u"1 010,020 podpis pola\n"
                                                               "1 070,020 odcinek\n"
                                                               "1 010,031 Nowak\n"
                                                               "2 010,020 podpis pola\n"
                                                               "2 010,031 Nowak\n"_s);
    EXPECT_FALSE(tekstFormularza(pola, {u"Nowak"_s}).contains(u"podpis"_s));
}

TEST(Formularz, ALongParagraphGetsSmallerAndThenIsCutWithAMark) {
    const double dwieLinie = 2 * wysLinii(Pismo::Formularz);
    const PoleFormularza pola[] = {wLiniach(0, {0, 1, 60, dwieLinie})};
    const auto linie = [&](int slow) {
        QStringList wynik;
        for (const QString& linia :
             tekstFormularza(pola, {u"różnica "_s.repeated(slow).trimmed()}).split(u'\n'))
            if (linia.startsWith(u'1')) wynik.append(linia.section(u' ', 2));
        return wynik;
    };
    const QStringList mniejsze = linie(11), uciete = linie(100);
    EXPECT_EQ(linie(2), QStringList{u"różnica różnica"_s});
    EXPECT_EQ(mniejsze.join(u' ').count(u"różnica"_s), 11);
    for (const QString& linia : mniejsze) EXPECT_LE(szerTekstu(linia, Pismo::Drobne), 60);
    EXPECT_LE(static_cast<double>(uciete.size()) * wysLinii(Pismo::Drobne), dwieLinie);
    EXPECT_TRUE(uciete.last().endsWith(u'…')) << uciete.last().toStdString();
}

} // namespace

} // namespace tornel::testy
