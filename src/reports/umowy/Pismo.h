// A paper that somebody signs, as a list of lines: each is a heading, a paragraph, a caption with its value,
// an amount in the column of amounts, a row of a small table, or places for signatures.
#pragma once
#include "druk/Uklad.h"
#include <memory>

namespace tornel::reports {

class PismoDoPodpisu {
public:
    /// `linia`: height of a line, mm.
    PismoDoPodpisu(const QString& nazwa, const QString& tytul, double linia = 5.2);

    void tytul(const QString& tekst) { dodaj(KolTytul, tekst); }
    void srodtytul(const QString& tekst) { dodaj(KolSrodtytul, tekst); }
    void akapit(const QString& tekst) { dodaj(KolAkapit, tekst); }
    void doPrawej(const QString& tekst) { dodaj(KolPrawa, tekst); }
    /// A caption and behind it what it is about.
    void para(QStringView podpis, const QString& wartosc);
    /// An amount, zł, in the column of amounts.
    void kwota(QStringView podpis, Waluta kwota);
    /// A caption and three cells at the right.
    void wiersz(QStringView podpis, const QString& a, const QString& b, const QString& c);
    /// Dotted lines with what is signed below them; an empty one is left out.
    void podpisy(QStringView lewy, QStringView prawy);
    void odstep() { dodaj(KolAkapit, {}); }

    [[nodiscard]] std::shared_ptr<const Uklad> uloz();

private:
    enum Kolumny {
        KolTytul,
        KolSrodtytul,
        KolAkapit,
        KolPrawa,
        KolPodpis,
        KolWartosc,
        KolOpisKwoty,
        KolKwota,
        KolOpis,
        KolA,
        KolB,
        KolC,
        KolLewy,
        KolPrawy,
        kKolumnPisma
    };
    void dodaj(Kolumny kolumna, const QString& tekst);
    QList<Wartosc>& nowa();

    OpisWydruku opis_;
    double linia_;
    QList<QList<Wartosc>> wiersze_;
};

/// "1 234,56 zł".
[[nodiscard]] QString zlote(Waluta kwota);
/// "05/03/2001"; empty for no date.
[[nodiscard]] QString dataPisma(QDate data);

} // namespace tornel::reports
