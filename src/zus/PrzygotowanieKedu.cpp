#include "zus/PrzygotowanieKedu.h"
#include "common/Rozmowa.h"
#include "rules/Stale.h"
#include <QFileInfo>

namespace tornel::zus {

std::optional<QString> PrzygotowanieKedu::wybierzPlik() {
    auto plik = p_.plik(o_.stale.PathKDU);
    if (!plik || plik->isEmpty()) return std::nullopt;
    if (QFileInfo::exists(*plik) && !o_.rozmowa.pytanie(kPytanieOPlik.toString())) return std::nullopt;
    return plik;
}

OkresZlecen PrzygotowanieKedu::okresZlecen() {
    const auto od = p_.dzien(QStringLiteral("Umowy zlecenia od:"));
    if (!od) return {};
    const auto dokad = p_.dzien(QStringLiteral("Umowy zlecenia do:"));
    return dokad ? OkresZlecen{*od, *dokad} : OkresZlecen{};
}

bool PrzygotowanieKedu::uzupelnij(ZamowienieKedu& zamowienie) {
    if (zamowienie.wybor.dlaPracownikow()) {
        // Given up, it must not turn into one employee chosen by nobody.
        const auto wszyscy = o_.rozmowa.pytanieZAnulowaniem(
            QStringLiteral("Czy przygotować KEDU dla wszystkich pracowników ?"));
        if (!wszyscy) return false;
        if (!*wszyscy) {
            const auto prcId = p_.pracownik();
            if (!prcId) return false;
            zamowienie.prcId = *prcId;
        }
    }
    if (zamowienie.wybor.jest(KodKedu::RZA)) zamowienie.zlecenia = okresZlecen();
    for (const DokumentKedu& d : DokumentyKedu()) {
        if (d.petla != Petla::Raport || !zamowienie.wybor.jest(d.kod)) continue;
        const auto miesiac = p_.miesiac(d.pytanieMiesiaca.toString());
        if (!miesiac) continue;
        // Whatever was answered goes into the report, an empty answer too: deliberate.
        const auto identyfikator = o_.rozmowa.wprowadz(
            d.pytanieIdentyfikatora.toString(), Rozmowa::domyslnyTytul(), DomyslnyIdentyfikator(*miesiac));
        zamowienie.raporty[d.kod] = {*miesiac, identyfikator.value_or(QString())};
        if (d.kod == KodKedu::RNA)
            // Either answer takes them from the general calendar: deliberate.
            (void)o_.rozmowa.pytanie(
                QStringLiteral("Czy dni wynikające z obowiązku pracy wyliczyć z dni ogólnych ?"));
    }
    return true;
}

std::optional<PrzygotowanieKedu::Wykonane> PrzygotowanieKedu::Przygotuj(const WyborDokumentow& wybor,
                                                                        const QDateTime& kiedy) {
    if (!wybor.jakikolwiek()) {
        o_.rozmowa.komunikat(QStringLiteral("Nie wybrano jakie formularze mają zostać przygotowane! Proszę "
                                            "zaznaczyć formularze do przygotowania."),
                             Styl::Wykrzyknik);
        return std::nullopt;
    }
    const auto plik = wybierzPlik();
    if (!plik) return std::nullopt;
    ZamowienieKedu zamowienie{.plik = *plik, .wybor = wybor, .kiedy = kiedy};
    if (!uzupelnij(zamowienie)) return std::nullopt;
    const auto sprawdz = [&] { return SprawdzKedu(o_, zamowienie); };
    if (!sprawdz().isEmpty() && !p_.mimoUwag(sprawdz)) return std::nullopt;
    auto wynik = ZbiorKedu(o_, zamowienie).StworzPlik();
    if (!wynik) return std::nullopt;
    return Wykonane{zamowienie, *wynik};
}

} // namespace tornel::zus
