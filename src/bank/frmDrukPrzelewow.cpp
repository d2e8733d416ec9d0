#include "bank/frmDrukPrzelewow.h"
#include "bank/frmMCS.h"
#include "bank/frmWybKonta.h"
#include "common/Liczby.h"
#include "common/Rozmowa.h"
#include "okna/Drukowanie.h"
#include "okna/Klepsydra.h"
#include "rules/Stale.h"

namespace tornel::bank {

namespace {

/// What the dialog of the account says about the payments.
PytanieOPrzelewy pytanieOPrzelewy(const QList<Wyplata>& wyplaty, const JuzWydrukowane& wykonane) {
    Waluta suma;
    for (const Wyplata& w : wyplaty) suma += w.kwota;
    const QString kwota = QStringLiteral("%1 zł").arg(FormatKwoty(suma));
    return {wyplaty.size() == 1 ? kwota
                                : QStringLiteral("przelewy: %1, razem %2").arg(wyplaty.size()).arg(kwota),
            wykonane.napis, wykonane.ktore.contains(true) && wykonane.ktore.contains(false)};
}

QList<Wyplata> bezWykonanych(const QList<Wyplata>& wyplaty, const JuzWydrukowane& wykonane) {
    QList<Wyplata> wynik;
    for (qsizetype i = 0; i < wyplaty.size(); ++i)
        if (!wykonane.ktore[i]) wynik.append(wyplaty[i]);
    return wynik;
}

} // namespace

bool DrukujPrzelewy(Otoczenie& otoczenie, KomuPrzelew komu, const ZrodloPrzelewow& zrodlo,
                    const UlozeniePrzelewow& uloz, QWidget* rodzic) {
    Rozmowa& rozmowa = otoczenie.rozmowa;
    const DoPrzelania co = ZnajdzDoPrzelania(otoczenie, komu, zrodlo);
    if (!co.odmowa.isEmpty()) {
        rozmowa.komunikat(co.odmowa, Styl::Wykrzyknik);
        return false;
    }
    const JuzWydrukowane wykonane = SprawdzWydrukowane(otoczenie, komu, zrodlo, co.wyplaty);
    frmWybKonta wybor(otoczenie, rodzic, pytanieOPrzelewy(co.wyplaty, wykonane));
    if (wybor.exec() != QDialog::Accepted || !wybor.konto()) return false;
    auto tytul = co.tytul.isEmpty() ? rozmowa.wprowadz(kSzczegolyPlatnosci, kTytulSzczegolow)
                                    : std::optional(co.tytul);
    if (!tytul) return false;
    const QList<Wyplata> wyplaty = wybor.pominWykonane() ? bezWykonanych(co.wyplaty, wykonane) : co.wyplaty;
    Przelewy tworzone(otoczenie);
    const qint64 konto = wybor.konto()->nr;
    const QList<Przelew> przelewy = komu == KomuPrzelew::Osoby
                                        ? tworzone.PrzelewPracownika(wyplaty, konto, *tytul)
                                        : tworzone.PrzelewPodatku(wyplaty, konto, *tytul);
    if (przelewy.isEmpty()) return false;
    tworzone.ZapiszPrzelewy(przelewy);
    // A page is one order.
    const auto zapamietaj = [&](const Wydanie& w) {
        ZapamietajWydrukowane(otoczenie, komu, zrodlo, przelewy.mid(w.od - 1, w.dokad - w.od + 1),
                              QDateTime::currentDateTime(), w.plik);
    };
    return PokazWydruk(uloz(przelewy, wybor.uklad()), otoczenie.stale.DrukPrzel ? Podglad::Nie : Podglad::Tak,
                       rozmowa, rodzic, zapamietaj);
}

bool PrzelewyDoMultiCash(Otoczenie& otoczenie, const ZrodloPrzelewow& zrodlo, QWidget* rodzic) {
    frmMCS okno(otoczenie, zrodlo, rodzic);
    if (okno.exec() != QDialog::Accepted) return false;
    const Klepsydra klepsydra;
    return MultiCash(otoczenie).utworz(okno.przebieg(), zrodlo).value_or(0) > 0;
}

} // namespace tornel::bank
