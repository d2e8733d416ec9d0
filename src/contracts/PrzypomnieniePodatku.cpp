#include "contracts/PrzypomnieniePodatku.h"
#include "bank/ZleceniaPrzelewow.h"
#include "common/Daty.h"
#include "rules/Wykonane.h"
#include "store/Recordset.h"
#include <algorithm>

namespace tornel::contracts {

namespace {

/// The tax of the office for the month as it would be paid now.
Waluta podatekUrzedu(const RodzajUmowy& rodzaj, const Recordset& umowy, const PodatekUmowy& umowa,
                     RokMies miesiac) {
    const Kolumna wyplacona = rodzaj.kolumna("data_wyp"), usId = rodzaj.kolumna("us_id"),
                  przelewem = rodzaj.kolumna("przelewem"), podatek = rodzaj.kolumna("Podatek");
    Waluta suma = umowa.podatek;
    for (const Wiersz w : umowy.wiersze()) {
        const QDate dzien = w.data(wyplacona);
        if (w.liczba(rodzaj.id) != umowa.id && dzien.isValid() && RokMies::dnia(dzien) == miesiac &&
            w.liczba(usId) == umowa.usId && w.kwota(przelewem) > Waluta{})
            suma += w.kwota(podatek);
    }
    return suma;
}

} // namespace

QString PrzypomnieniePodatku(Otoczenie& otoczenie, const RodzajUmowy& rodzaj, const Recordset& umowy,
                             const PodatekUmowy& umowa) {
    if (!umowa.wyplacona.isValid() || !(umowa.przelewem > Waluta{})) return {};
    const RokMies miesiac = RokMies::dnia(umowa.wyplacona);
    const std::string_view nazwa = rodzaj.tabela->nazwa;
    const QList<Wykonanie> wydrukowane =
        Wykonane(otoczenie.sesja)
            .szukaj({.rodzaj = wykonanie::PrzelewPodatku.kod.toString(),
                     .miesiac = miesiac,
                     .zrodlo = QString::fromLatin1(nazwa.data(), static_cast<qsizetype>(nazwa.size()))});
    if (wydrukowane.isEmpty()) return {};
    const Waluta teraz = podatekUrzedu(rodzaj, umowy, umowa, miesiac);
    QList<Wykonanie> urzedu;
    for (const Wykonanie& w : wydrukowane)
        if (w.komu == umowa.usId) urzedu.append(w);
    if (!(teraz > Waluta{}) || std::ranges::find(urzedu, teraz, &Wykonanie::kwota) != urzedu.end()) return {};
    const QString kiedy = NapisWykonania(wykonanie::PrzelewPodatku, wydrukowane);
    const QString ile = urzedu.isEmpty() ? QStringLiteral("bez tego urzędu")
                                         : QStringLiteral("na %1 zł").arg(FormatKwoty(urzedu.last().kwota));
    return QStringLiteral("Przelew podatku za %1 %2 %3, a podatek umów tego urzędu wynosi teraz %4 zł.")
        .arg(NapisMiesiaca(miesiac.rok, miesiac.mies), kiedy, ile, FormatKwoty(teraz));
}

} // namespace tornel::contracts
