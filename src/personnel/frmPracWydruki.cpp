#include "personnel/frmPracWydruki.h"
#include "common/Liczby.h"
#include "common/Rozmowa.h"
#include "personnel/frmKartaEw.h"
#include "personnel/frmWydrukKadr.h"
#include <algorithm>

namespace tornel::personnel {

namespace {

/// How many months a span proposes.
constexpr int kMiesiecyZaswiadczenia = 3;

QList<qint64> numeryOsob(const QList<Osoba>& osoby) {
    QList<qint64> wynik;
    for (const Osoba& o : osoby) wynik.append(o.prcId);
    return wynik;
}

QString opisOsoby(const ListaDoWydruku& lista) {
    const auto ta =
        lista.wybrany ? std::ranges::find(lista.osoby, *lista.wybrany, &Osoba::prcId) : lista.osoby.end();
    return ta == lista.osoby.end()
               ? QString()
               : FormatNumeru(ta->prcId) + QStringLiteral("  ") + ta->nazwisko + QLatin1Char(' ') + ta->imie;
}

} // namespace

void WydrukujZKartoteki(Otoczenie& otoczenie, const PortWydrukowKadr& wydruki, const PozycjaWydrukow& wydruk,
                        const ListaDoWydruku& lista, QWidget* rodzic) {
    if (wydruk.okres == CzasWydruku::Zaden)
        return wydruki.drukuj(wydruk.napis, {numeryOsob(lista.osoby)}, rodzic);
    const RokMies ostatni =
        wydruki.ostatniMiesiac ? wydruki.ostatniMiesiac() : RokMies::dnia(QDate::currentDate());
    if (wydruk.napis == wydruki.kartaEwidencji) {
        frmKartaEw(otoczenie, lista.osoby, lista.wybrany.value_or(-1), ostatni.rok, wydruki, rodzic).exec();
        return;
    }
    frmWydrukKadr okno(otoczenie.rozmowa, wydruk, {{}, ostatni.plus(1 - kMiesiecyZaswiadczenia), ostatni},
                       opisOsoby(lista), lista.osoby.size(), rodzic);
    if (okno.exec() != QDialog::Accepted) return;
    ZlecenieWydruku zlecenie{{}, okno.od(), okno.dokad()};
    if (okno.wszyscy())
        zlecenie.numery = Pracownicy(otoczenie).zatrudnieniSposrod(
            numeryOsob(lista.osoby), zlecenie.od.pierwszyDzien(), zlecenie.dokad.ostatniDzien());
    else
        zlecenie.numery = {*lista.wybrany};
    if (zlecenie.numery.isEmpty())
        return otoczenie.rozmowa.komunikat(QStringLiteral("Nikt z listy nie był zatrudniony w tym czasie."),
                                           Styl::Informacja);
    wydruki.drukuj(wydruk.napis, zlecenie, rodzic);
}

} // namespace tornel::personnel
