#include "payroll/nieobecnosci/DaneNieobecnosci.h"
#include "payroll/lista/WgPracownika.h"
#include "store/Sesja.h"

namespace tornel::payroll {

namespace {

/// "2001-07-31" of the file; anything else is an invalid date.
QDate dataZTekstu(std::string_view tekst) {
    if (tekst.size() != 10 || tekst[4] != '-' || tekst[7] != '-') return {};
    const auto liczba = [&](std::size_t od, std::size_t ile) {
        int wynik = 0;
        for (const char znak : tekst.substr(od, ile))
            wynik = znak >= '0' && znak <= '9' ? 10 * wynik + znak - '0' : -10000;
        return wynik;
    };
    return QDate(liczba(0, 4), liczba(5, 2), liczba(8, 2));
}

} // namespace

/// One of the two registers, between two dates.
class DaneNieobecnosci::Rejestr {
public:
    using Reszta = void (*)(Nieobecnosc& cel, const Instrukcja& wiersz);

    /// `kolumny`: of this register alone; `reszta` reads them from number 3 on.
    Rejestr(Sesja& sesja, const char* tabela, const char* kolumny, Reszta reszta, QDate od, QDate dokad,
            Odczyt odczyt)
        : odczyt_(odczyt), reszta_(reszta),
          // The plus signs keep the engine from trying every date as a number.
          instrukcja_(sesja.cnPlace, (QByteArray("SELECT PRC_ID, DATA, DATA_DO, ") + kolumny + " FROM " +
                                      tabela + " WHERE +DATA_DO >= ?1 AND +DATA <= ?2" +
                                      (odczyt == Odczyt::PoJednym ? " AND PRC_ID = ?3" : ""))
                                         .toStdString()) {
        instrukcja_.wiaz(0, od.toString(Qt::ISODate)).wiaz(1, dokad.toString(Qt::ISODate));
        if (odczyt == Odczyt::Wszystkich) czytaj();
    }

    [[nodiscard]] Nieobecnosci pracownika(qint64 prcId) {
        if (odczyt_ == Odczyt::PoJednym && prcId_ != prcId) {
            prcId_ = prcId;
            instrukcja_.wiaz(2, prcId);
            czytaj();
        }
        const std::span<Nieobecnosc> swoje = wiersze_.pracownika(prcId);
        std::ranges::sort(swoje, {}, [](const Nieobecnosc& n) { return std::pair(n.Data, n.data_do); });
        return swoje;
    }

private:
    void czytaj() {
        wiersze_.wyczysc();
        while (instrukcja_.wiersz()) {
            const QDate od = dataZTekstu(instrukcja_.utf8(1)), dokad = dataZTekstu(instrukcja_.utf8(2));
            if (!od.isValid() || dokad < od) continue; // no day belongs to it
            Nieobecnosc& n = wiersze_.dopisz(instrukcja_.liczba(0));
            n.Data = od;
            n.data_do = dokad;
            reszta_(n, instrukcja_);
        }
        instrukcja_.od_nowa();
        wiersze_.uloz();
    }

    Odczyt odczyt_;
    Reszta reszta_;
    Instrukcja instrukcja_;
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
        const int rok = sesja_.rok(), mies = sesja_.mies();
        const auto reszta = [](Nieobecnosc& n, const Instrukcja& wiersz) {
            n.Rodzaj = static_cast<int>(wiersz.liczba(3));
            n.Kwota = Waluta::zSurowej(wiersz.liczba(4));
        };
        urlopy_ = std::make_unique<Rejestr>(sesja_, "URL", "RODZAJ, KWOTA", reszta, PierwszyDzien(rok, mies),
                                            OstatniDzien(rok, mies), odczyt_);
    }
    return urlopy_->pracownika(prcId);
}

Nieobecnosci DaneNieobecnosci::zwolnieniaRoku(qint64 prcId) {
    if (!zwolnienia_) {
        const int rok = sesja_.rok();
        const auto reszta = [](Nieobecnosc& n, const Instrukcja& wiersz) {
            n.st_proc = Waluta::zSurowej(wiersz.liczba(3));
        };
        zwolnienia_ = std::make_unique<Rejestr>(sesja_, "ZW", "ST_PROC", reszta, PierwszyDzien(rok, 1),
                                                OstatniDzien(rok, sesja_.mies()), odczyt_);
    }
    return zwolnienia_->pracownika(prcId);
}

std::optional<DniKalendarza> DaneNieobecnosci::czytajKalendarz(qint64 prcId, int rok, int mies) {
    if (!kalendarz_) {
        QByteArray sql("SELECT ");
        for (int d = 1; d <= 31; ++d) {
            const std::string_view nazwa = schemat::DzienKalendarza(d).def().nazwa;
            sql += (d == 1 ? "" : ", ") + QByteArray(nazwa.data(), static_cast<qsizetype>(nazwa.size()));
        }
        sql += " FROM KALENDARZ WHERE PRCID = ?1 AND ROK = ?2 AND MIES = ?3 ORDER BY ROWID LIMIT 1";
        kalendarz_ = std::make_unique<Instrukcja>(sesja_.cnPlace, sql.toStdString());
    }
    kalendarz_->wiaz(0, prcId).wiaz(1, static_cast<qint64>(rok)).wiaz(2, static_cast<qint64>(mies));
    std::optional<DniKalendarza> wynik;
    if (kalendarz_->wiersz()) {
        std::array<qint64, 31> flagi{};
        for (int d = 0; d < 31; ++d) flagi[static_cast<std::size_t>(d)] = kalendarz_->liczba(d);
        wynik = DniKalendarza::zFlag(rok, mies, flagi);
    }
    kalendarz_->od_nowa();
    return wynik;
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
        Instrukcja jest(sesja_.cnPlace, "SELECT EXISTS(SELECT 1 FROM KALENDARZ)");
        pusty_ = !(jest.wiersz() && jest.liczba(0) != 0);
    }
    return *pusty_;
}

} // namespace tornel::payroll
