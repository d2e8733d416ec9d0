#include "payroll/DaneNieobecnosci.h"
#include "store/Sesja.h"

namespace {

/// ISO text of the file; anything else is an invalid date.
QDate dataZTekstu(std::string_view tekst) {
    return QDate::fromString(QLatin1String(tekst.data(), static_cast<qsizetype>(tekst.size())), Qt::ISODate);
}

} // namespace

/// One of the two registers, between two dates.
class DaneNieobecnosci::Rejestr {
public:
    /// `kolumny`: kind, amount and percentage in this order, or a constant where the register has none.
    Rejestr(Sesja& sesja, const char* tabela, const char* kolumny, QDate od, QDate dokad, Odczyt odczyt)
        : instrukcja_(sesja.cnPlace, (QByteArray("SELECT PRC_ID, DATA, DATA_DO, ") + kolumny + " FROM " +
                                      tabela + " WHERE DATA_DO >= ?1 AND DATA <= ?2" +
                                      (odczyt == Odczyt::PoJednym ? " AND PRC_ID = ?3" : "") +
                                      " ORDER BY PRC_ID, DATA, DATA_DO")
                                         .toStdString()) {
        instrukcja_.wiaz(0, od.toString(Qt::ISODate)).wiaz(1, dokad.toString(Qt::ISODate));
        if (odczyt == Odczyt::PoJednym) return;
        wszystkie_.emplace();
        while (instrukcja_.wiersz()) (*wszystkie_)[instrukcja_.liczba(0)].append(wiersz());
    }

    [[nodiscard]] Nieobecnosci pracownika(qint64 prcId) {
        if (wszystkie_) return wszystkie_->value(prcId);
        if (const auto znane = znane_.constFind(prcId); znane != znane_.cend()) return *znane;
        instrukcja_.wiaz(2, prcId);
        Nieobecnosci wynik;
        while (instrukcja_.wiersz()) wynik.append(wiersz());
        instrukcja_.od_nowa();
        znane_.insert(prcId, wynik);
        return wynik;
    }

private:
    [[nodiscard]] Nieobecnosc wiersz() const {
        return {dataZTekstu(instrukcja_.utf8(1)), dataZTekstu(instrukcja_.utf8(2)),
                static_cast<int>(instrukcja_.liczba(3)), Waluta::zSurowej(instrukcja_.liczba(4)),
                Waluta::zSurowej(instrukcja_.liczba(5))};
    }

    Instrukcja instrukcja_;
    std::optional<QHash<qint64, Nieobecnosci>> wszystkie_;
    QHash<qint64, Nieobecnosci> znane_;
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
    const int rok = sesja_.rok(), mies = sesja_.mies();
    if (!urlopy_)
        urlopy_ = std::make_unique<Rejestr>(sesja_, "URL", "RODZAJ, KWOTA, 0", PierwszyDzien(rok, mies),
                                            OstatniDzien(rok, mies), odczyt_);
    return urlopy_->pracownika(prcId);
}

Nieobecnosci DaneNieobecnosci::zwolnieniaRoku(qint64 prcId) {
    const int rok = sesja_.rok();
    if (!zwolnienia_)
        zwolnienia_ = std::make_unique<Rejestr>(sesja_, "ZW", "0, 0, ST_PROC", PierwszyDzien(rok, 1),
                                                OstatniDzien(rok, sesja_.mies()), odczyt_);
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
