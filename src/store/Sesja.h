// The session: the connection and the long-lived table handles that all screens share.
#pragma once
#include "common/RokMies.h"
#include "store/Grupa.h"
#include "store/Schemat.h"
#include "store/WersjaPliku.h"
#include <functional>
#include <memory>
#include <optional>
#include <QString>

namespace tornel::store {

/// The user at work.
struct Uzytkownik {
    QString nazwa;
    QString haslo; ///< as typed
    int typ = 0;   ///< 0 administrator (or a failed login), otherwise bits: 1 "Kadry", 2 "Płace"
};

class Sesja {
public:
    /// Opens the file, brings an older one up to date, and opens the six handles that stay open, sorted.
    /// Throws `BladBazy`, also for a file of a newer program. `przedTabelami` is what happens to the file of
    /// today's version before any table is opened.
    explicit Sesja(const QString& sciezka, const std::function<void(Polaczenie&)>& przedTabelami = {});
    /// What was done with an older file; nothing for one of today's version.
    [[nodiscard]] const std::optional<ZmianaWersji>& zmianaWersji() const { return zmianaWersji_; }

    /// The name of a month table: `Sesja::nazwaMiesiaca("PLA", {2001, 7})` is PLA200107.
    [[nodiscard]] static QString nazwaMiesiaca(std::string_view przedrostek, RokMies miesiac);
    [[nodiscard]] static QString nazwaMiesiaca(std::string_view przedrostek, int rok, int mies) {
        return nazwaMiesiaca(przedrostek, RokMies{rok, mies});
    }

    /// Opens the month's four tables on `rsPLA`, `rsPLB`, `rsPLS`, `rsPLD`, sorted "PRC_ID, LISTA", and the
    /// month's rows of `ZASILEK` and `WPISANE` on `rsZASILEK`, `rsWPISANE`, where `Znajdz(prcId, lista)`
    /// finds a row. `wynik` is 1, and nothing else happens, when the header has no such month or its tables
    /// are missing; otherwise 0. Reads `PLACE`.
    void OtworzMiesiac(int rok, int mies, int& wynik);
    /// Closes the month's handles.
    void ZamknijMiesiac();
    /// Moves `PLA` to its next row (`przesun`) and `PLB`, `PLD`, `PLS` to the same `PRC_ID` and `LISTA`;
    /// opens the month first when another one is open. False past the last row.
    bool PrzesunWierszMiesiaca(int rok, int mies, bool przesun);
    /// Moves `PLB`, `PLD`, `PLS` to the `PRC_ID` and `LISTA` of the current `PLA` row. False if one has no
    /// partner.
    bool UstawPartnerow();
    /// Moves `PLACE`, `PLACEN`, `PLACEK` to the month; false when one of them has no such row. Opens them if
    /// closed.
    bool ZnajdzMiesiac(RokMies miesiac);
    bool ZnajdzMiesiac(int rok, int mies) { return ZnajdzMiesiac(RokMies{rok, mies}); }
    /// Opens `PLACE`, `PLACEN`, `PLACEK` anew, sorted "ROK, MIES".
    void OtworzNaglowki();
    /// The open month, zeros if none is open.
    [[nodiscard]] RokMies miesiac() const { return miesiac_; }
    [[nodiscard]] int rok() const { return miesiac_.rok; }
    [[nodiscard]] int mies() const { return miesiac_.mies; }

    /// Moves the five personnel handles to the employee. False when one of the tables has no row for him.
    bool UstawPracownika(qint64 prcId);

    /// Reads every open handle again, after a rolled-back action.
    void OdswiezUchwyty();

    /// Closes every handle and runs `czynnosc`, which changes the tables; then those that were open are open
    /// again, also when it throws. Pending changes must have been written. Throws `BladBazy`.
    void PrzyZamknietychUchwytach(const std::function<void()>& czynnosc);

    Polaczenie cnPlace;
    Recordset rsPRACDP{schemat::PRACDP}, rsPRACSK{schemat::PRACSK}, rsPRACINF{schemat::PRACINF};
    Recordset rsPRACPR{schemat::PRACPR}, rsPRACZUS{schemat::PRACZUS}, rsSZ_PL{schemat::SZ_PL};
    Recordset rsPLACE{schemat::PLACE}, rsPLACEN{schemat::PLACEN}, rsPLACEK{schemat::PLACEK};
    Recordset rsPLA{schemat::PLA}, rsPLB{schemat::PLB}, rsPLS{schemat::PLS}, rsPLD{schemat::PLD};
    Recordset rsZASILEK{schemat::ZASILEK}, rsWPISANE{schemat::WPISANE};
    Recordset rsURL{schemat::URL}, rsZW{schemat::ZW}, rsM_PRACY{schemat::M_PRACY}, rsUS{schemat::US};
    Recordset rsNADG{schemat::NADG}, rsZUS{schemat::ZUS};
    Recordset rsPIT4{schemat::PIT4}, rsPIT11{schemat::PIT11}, rsPIT40{schemat::PIT40},
        rsPIT8B{schemat::PIT8B};
    Recordset rsUZL{schemat::UZL}, rsUOD{schemat::UOD}, rsHON{schemat::HON};
    Recordset rsKONTA{schemat::KONTA}, rsRODZINA{schemat::RODZINA}, rsUMOP{schemat::UMOP};
    Recordset rsKON{schemat::KON}, rsUZYTKOWNICY{schemat::UZYTKOWNICY};

    /// The five tables of an employee, the three headers of a month, and the four tables of the open month.
    const Grupa kadry{uchwyty(), schemat::TabelePracownika};
    const Grupa naglowki{uchwyty(), schemat::TabeleNaglowka};
    const Grupa wierszListy{uchwyty(), schemat::TabeleMiesiaca};

    Uzytkownik uzytkownik;

private:
    [[nodiscard]] std::vector<Recordset*> uchwyty();
    void otworzStale();
    std::optional<ZmianaWersji> zmianaWersji_;
    RokMies miesiac_;
};

/// A month open on the session's handles for as long as this object lives. Then the month that was open
/// before is open again, or none: so earlier months are walked beside the month in work. Pending changes of
/// the month in work must have been written.
class OtwartyMiesiac {
public:
    /// As `OtworzMiesiac`. Throws `BladBazy`.
    OtwartyMiesiac(Sesja& sesja, RokMies miesiac);
    ~OtwartyMiesiac();
    OtwartyMiesiac(const OtwartyMiesiac&) = delete;
    OtwartyMiesiac& operator=(const OtwartyMiesiac&) = delete;
    /// Whether there is such a month.
    [[nodiscard]] bool jest() const { return jest_; }

private:
    Sesja& sesja_;
    RokMies poprzedni_;
    bool jest_ = false;
};

} // namespace tornel::store
