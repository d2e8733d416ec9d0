#include "personnel/Rodzina.h"
#include "common/Blad.h"
#include "common/Rozmowa.h"
#include <algorithm>
#include <utility>

namespace tornel::personnel {

using schemat::PRACDP;
using schemat::RODZINA;

namespace {

/// What a family mostly shares, and the address that the insurer compares.
constexpr std::pair<Kolumna, Kolumna> kZPracownika[] = {
    {RODZINA("Naz"), PRACDP("Naz")},
    {RODZINA("Kod"), PRACDP("kod_m")},
    {RODZINA("miasto"), PRACDP("miasto_m")},
    {RODZINA("gm_dz"), PRACDP("gm_dz_m")},
    {RODZINA("ulica"), PRACDP("ulica_m")},
    {RODZINA("nr_domu"), PRACDP("nr_domu_m")},
    {RODZINA("nr_miesz"), PRACDP("nr_miesz_m")},
};

} // namespace

Rodzina::Rodzina(Otoczenie& otoczenie, qint64 prcId) : o_(otoczenie), prcId_(prcId) {
    rs().Open(o_.sesja.cnPlace);
}

QList<qint64> Rodzina::numery() const {
    QList<qint64> wynik;
    for (const Zakladka z : std::as_const(rs()).wiersze(prcId_))
        wynik.append(Wiersz(rs(), z).liczba(RODZINA("ROD_ID")));
    std::ranges::sort(wynik);
    return wynik;
}

bool Rodzina::Ustaw(qint64 rodId) { return rs().Znajdz(prcId_, rodId); }

qint64 Rodzina::Nowy() {
    const QList<qint64> zajete = numery();
    qint64 numer = 1;
    while (zajete.contains(numer)) ++numer;
    try {
        rs().AddNewZero(prcId_);
        rs().ustaw(RODZINA("ROD_ID"), numer);
        if (const auto dp = o_.sesja.rsPRACDP.szukaj(prcId_))
            for (const auto& [cel, zrodlo] : kZPracownika) rs().ustaw(cel, dp->tekst(zrodlo));
        rs().UpdateBatch(QStringLiteral("Rodzina pracownika nr %1: nowa osoba").arg(prcId_));
    } catch (...) {
        rs().CancelBatch();
        throw;
    }
    (void)Ustaw(numer);
    return numer;
}

void Rodzina::Wpisz() {
    rs().UpdateBatch(QStringLiteral("Rodzina pracownika nr %1: zmiana danych").arg(prcId_));
}

bool Rodzina::Usun(qint64 rodId) {
    if (!Ustaw(rodId)) throw Blad(QStringLiteral("W rodzinie pracownika nie ma osoby nr %1.").arg(rodId));
    const QString kto =
        (rs().tekst(RODZINA("Imie")) + QLatin1Char(' ') + rs().tekst(RODZINA("Naz"))).trimmed();
    if (!o_.rozmowa.pytanieUsuwajace(
            QStringLiteral("Czy na pewno usunąć z rodziny pracownika osobę: %1 ?").arg(kto)))
        return false;
    (void)Ustaw(rodId);
    rs().Delete();
    try {
        rs().UpdateBatch(QStringLiteral("Rodzina pracownika nr %1: usunięcie osoby").arg(prcId_));
    } catch (...) {
        rs().CancelBatch();
        throw;
    }
    return true;
}

QString Rodzina::pracownik() const {
    const auto dp = o_.sesja.rsPRACDP.szukaj(prcId_);
    const QString nazwisko =
        dp ? dp->tekst(PRACDP("Naz")) + QLatin1Char(' ') + dp->tekst(PRACDP("Imie_1")) : QString();
    return QStringLiteral("%1, nr %2").arg(nazwisko).arg(prcId_);
}

} // namespace tornel::personnel
