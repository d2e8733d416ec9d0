#include "payroll/nieobecnosci/DaneNieobecnosci.h"
#include "payroll/lista/WgPracownika.h"
#include "store/SchematKadr.h"
#include "store/Sesja.h"

namespace tornel::payroll {

using schemat::KALENDARZ;
using schemat::URL;
using schemat::ZW;

/// One of the two registers, between two dates.
class DaneNieobecnosci::Rejestr {
public:
    using Reszta = void (*)(Nieobecnosc& cel, const WierszeZapytania& wiersz);
    struct Kolumny {
        Kolumna prcId, od, dokad;
    };

    /// `zapytanie`: the columns of this register alone, which `reszta` reads.
    Rejestr(Sesja& sesja, Zapytanie zapytanie, const Kolumny& kolumny, Reszta reszta, QDate od, QDate dokad,
            Odczyt odczyt)
        : odczyt_(odczyt), kolumny_(kolumny), reszta_(reszta), od_(od), dokad_(dokad),
          zapytanie_(sesja.cnPlace, wOkresie(zapytanie, kolumny, odczyt)) {
        if (odczyt == Odczyt::Wszystkich) czytaj(zapytanie_.uruchom());
    }

    [[nodiscard]] Nieobecnosci pracownika(qint64 prcId) {
        if (odczyt_ == Odczyt::PoJednym && prcId_ != prcId) {
            czytaj(zapytanie_.uruchom(od_, dokad_, prcId));
            prcId_ = prcId;
        }
        const std::span<Nieobecnosc> swoje = wiersze_.pracownika(prcId);
        std::ranges::sort(swoje, {}, [](const Nieobecnosc& n) { return std::pair(n.Data, n.data_do); });
        return swoje;
    }

private:
    /// One employee's rows of the period, and those whose dates are damaged: they must not slip through the
    /// comparison. A whole register is read faster than its dates are compared in the file.
    static const Zapytanie& wOkresie(Zapytanie& zapytanie, const Kolumny& k, Odczyt odczyt) {
        zapytanie.kolumny(k.prcId, k.od, k.dokad);
        if (odczyt == Odczyt::Wszystkich) return zapytanie;
        zapytanie.gdzie(k.dokad >= Parametr{0} || WarunekZapytania::bezDaty(k.dokad));
        zapytanie.gdzie(k.od <= Parametr{1} || WarunekZapytania::bezDaty(k.od));
        return zapytanie.gdzie(k.prcId == Parametr{2});
    }

    void czytaj(WierszeZapytania wiersze) {
        wiersze_.wyczysc();
        while (wiersze.nastepny())
            wiersze_.dopisz(wiersze, kolumny_.prcId, [&](Nieobecnosc& n) {
                n.Data = wiersze.data(kolumny_.od);
                n.data_do = wiersze.data(kolumny_.dokad);
                // Without a proper start and end no day belongs to it.
                if (!n.Data.isValid() || n.data_do < n.Data || n.data_do < od_ || n.Data > dokad_)
                    return Dopisanie::Pominiete;
                reszta_(n, wiersze);
                return Dopisanie::Przyjete;
            });
        wiersze_.uloz();
    }

    Odczyt odczyt_;
    Kolumny kolumny_;
    Reszta reszta_;
    QDate od_, dokad_;
    PrzygotowaneZapytanie zapytanie_;
    WgPracownika<Nieobecnosc> wiersze_;
    std::optional<qint64> prcId_; // whose rows these are, if read one by one
};

DaneNieobecnosci::DaneNieobecnosci(Sesja& sesja) : sesja_(sesja) {}
DaneNieobecnosci::~DaneNieobecnosci() = default;

void DaneNieobecnosci::zapomnij(Odczyt odczyt) {
    odczyt_ = odczyt;
    urlopy_.reset();
    zwolnienia_.reset();
    kalendarz_.reset();
    ogolny_.clear();
    wlasny_ = {};
    pusty_.reset();
}

Nieobecnosci DaneNieobecnosci::urlopy(qint64 prcId) {
    if (!urlopy_) {
        const auto reszta = [](Nieobecnosc& n, const WierszeZapytania& wiersz) {
            n.Rodzaj = static_cast<int>(wiersz.liczba(URL("Rodzaj")));
            n.Kwota = wiersz.kwota(URL("Kwota"));
        };
        const RokMies miesiac = sesja_.miesiac();
        urlopy_ = std::make_unique<Rejestr>(sesja_, Zapytanie(URL).kolumny(URL("Rodzaj"), URL("Kwota")),
                                            Rejestr::Kolumny{URL("prc_id"), URL("Data"), URL("data_do")},
                                            reszta, miesiac.pierwszyDzien(), miesiac.ostatniDzien(), odczyt_);
    }
    return urlopy_->pracownika(prcId);
}

Nieobecnosci DaneNieobecnosci::zwolnieniaRoku(qint64 prcId) {
    if (!zwolnienia_) {
        const auto reszta = [](Nieobecnosc& n, const WierszeZapytania& wiersz) {
            n.st_proc = Stawka(wiersz.kwota(ZW("st_proc")));
        };
        zwolnienia_ = std::make_unique<Rejestr>(sesja_, Zapytanie(ZW).kolumny(ZW("st_proc")),
                                                Rejestr::Kolumny{ZW("prc_id"), ZW("Data"), ZW("data_do")},
                                                reszta, RokMies{sesja_.rok(), 1}.pierwszyDzien(),
                                                sesja_.miesiac().ostatniDzien(), odczyt_);
    }
    return zwolnienia_->pracownika(prcId);
}

std::optional<DniKalendarza> DaneNieobecnosci::czytajKalendarz(qint64 prcId, int rok, int mies) {
    if (!kalendarz_) {
        Zapytanie dni(KALENDARZ);
        for (int d = 1; d <= 31; ++d) dni.kolumny(schemat::DzienKalendarza(d));
        kalendarz_.emplace(sesja_.cnPlace,
                           dni.gdzie(KALENDARZ("PrcId") == Parametr{0} && KALENDARZ("Rok") == Parametr{1} &&
                                     KALENDARZ("Mies") == Parametr{2})
                               .wedlugZapisu()
                               .pierwszych(1));
    }
    auto wiersz = kalendarz_->uruchom(prcId, rok, mies);
    if (!wiersz.nastepny()) return std::nullopt;
    std::array<qint64, 31> flagi{};
    for (int d = 1; d <= 31; ++d)
        flagi[static_cast<std::size_t>(d - 1)] = wiersz.liczba(schemat::DzienKalendarza(d));
    return DniKalendarza::zFlag(rok, mies, flagi);
}

std::optional<DniKalendarza> DaneNieobecnosci::kalendarz(qint64 prcId, int rok, int mies) {
    if (prcId == 0) {
        const int klucz = 12 * rok + mies;
        auto miesiac = ogolny_.constFind(klucz);
        if (miesiac == ogolny_.cend()) miesiac = ogolny_.insert(klucz, czytajKalendarz(0, rok, mies));
        return *miesiac;
    }
    if (wlasny_.prcId != prcId || wlasny_.rok != rok || wlasny_.mies != mies)
        wlasny_ = {prcId, rok, mies, czytajKalendarz(prcId, rok, mies)};
    return wlasny_.dni;
}

std::optional<DniKalendarza> DaneNieobecnosci::kalendarzLubOgolny(qint64 prcId, int rok, int mies) {
    const std::optional<DniKalendarza> wlasny = kalendarz(prcId, rok, mies);
    return wlasny ? wlasny : kalendarz(0, rok, mies);
}

bool DaneNieobecnosci::kalendarzPusty() {
    if (!pusty_) {
        PrzygotowaneZapytanie ktorykolwiek(sesja_.cnPlace, Zapytanie(KALENDARZ).pierwszych(1));
        pusty_ = !ktorykolwiek.uruchom().nastepny();
    }
    return *pusty_;
}

} // namespace tornel::payroll
