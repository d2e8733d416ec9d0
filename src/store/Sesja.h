// The session: the connection and the long-lived table handles that all screens share.
#pragma once
#include "store/Recordset.h"
#include "store/Schemat.h"
#include "store/WersjaPliku.h"
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
    /// Throws `BladBazy`, also for a file of a newer program.
    explicit Sesja(const QString& sciezka);
    /// What was done with an older file; nothing for one of today's version.
    [[nodiscard]] const std::optional<ZmianaWersji>& zmianaWersji() const { return zmianaWersji_; }

    /// The name of a month table: `Sesja::nazwaMiesiaca("PLA", 2001, 7)` is PLA200107.
    [[nodiscard]] static QString nazwaMiesiaca(std::string_view przedrostek, int rok, int mies);

    /// Opens the month's four tables on `rsPLA`, `rsPLB`, `rsPLS`, `rsPLD`, sorted "PRC_ID, LISTA", and the
    /// month's rows of `ZASILEK` on `rsZASILEK`, where `Znajdz(prcId, lista)` finds a row. `wynik`
    /// is 1, and nothing else happens, when the header has no such month or its tables are missing; otherwise
    /// 0. Reads `PLACE`.
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
    bool ZnajdzMiesiac(int rok, int mies);
    /// Opens `PLACE`, `PLACEN`, `PLACEK` anew, sorted "ROK, MIES".
    void OtworzNaglowki();
    /// Year of the open month, 0 if none is open.
    [[nodiscard]] int rok() const { return rok_; }
    [[nodiscard]] int mies() const { return mies_; }

    /// Moves the five personnel handles to the employee. False when one of the tables has no row for him.
    bool UstawPracownika(qint64 prcId);

    /// Reads every open handle again, after a rolled-back action.
    void OdswiezUchwyty();

    Polaczenie cnPlace;
    Recordset rsPRACDP{schemat::PRACDP}, rsPRACSK{schemat::PRACSK}, rsPRACINF{schemat::PRACINF};
    Recordset rsPRACPR{schemat::PRACPR}, rsPRACZUS{schemat::PRACZUS}, rsSZ_PL{schemat::SZ_PL};
    Recordset rsPLACE{schemat::PLACE}, rsPLACEN{schemat::PLACEN}, rsPLACEK{schemat::PLACEK};
    Recordset rsPLA{schemat::PLA}, rsPLB{schemat::PLB}, rsPLS{schemat::PLS}, rsPLD{schemat::PLD};
    Recordset rsZASILEK{schemat::ZASILEK};
    Recordset rsURL{schemat::URL}, rsZW{schemat::ZW}, rsM_PRACY{schemat::M_PRACY}, rsUS{schemat::US};
    Recordset rsNADG{schemat::NADG}, rsZUS{schemat::ZUS};
    Recordset rsPIT4{schemat::PIT4}, rsPIT11{schemat::PIT11}, rsPIT40{schemat::PIT40},
        rsPIT8B{schemat::PIT8B};
    Recordset rsUZL{schemat::UZL}, rsUOD{schemat::UOD}, rsHON{schemat::HON};
    Recordset rsKONTA{schemat::KONTA}, rsRODZINA{schemat::RODZINA}, rsUMOP{schemat::UMOP};
    Recordset rsKON{schemat::KON}, rsUZYTKOWNICY{schemat::UZYTKOWNICY};

    Uzytkownik uzytkownik;

private:
    [[nodiscard]] QList<Recordset*> uchwyty();
    std::optional<ZmianaWersji> zmianaWersji_;
    int rok_ = 0;
    int mies_ = 0;
};

} // namespace tornel::store
