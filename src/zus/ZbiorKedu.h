// A collection of the insurer's documents: one text file, written in one pass, put in place whole.
#pragma once
#include "common/Pliki.h"
#include "zus/RaportMiesieczny.h"
#include "zus/WyborDokumentow.h"
#include <map>
#include <QDateTime>

namespace tornel::common {
class Postep;
} // namespace tornel::common

namespace tornel::zus {

/// Everything that is asked before a collection is written.
struct ZamowienieKedu {
    QString plik; ///< path
    WyborDokumentow wybor = {};
    qint64 prcId = 0; ///< the one employee; 0 for all who are not dismissed
    OkresZlecen zlecenia = {};
    std::map<KodKedu, ZamowionyRaport> raporty = {}; ///< a chosen report without one is left out
    QDateTime kiedy = {};                            ///< now
};

/// The question before an existing file is replaced.
inline constexpr QStringView kPytanieOPlik = u"Podany plik już istnieje. Czy zmienić istniejący plik ?";

/// A report that could say nothing of somebody.
struct BezDanych {
    KodKedu kod;
    RokMies miesiac;
    qint64 prcId = 0; ///< 0 where the month itself is missing
};

struct WynikKedu {
    std::map<KodKedu, int> dokumenty; ///< how many of each were written
    QList<BezDanych> bezDanych;

    [[nodiscard]] int razem() const;
};

class ZbiorKedu {
public:
    ZbiorKedu(Otoczenie& otoczenie, ZamowienieKedu zamowienie);
    ~ZbiorKedu();

    /// Writes the file, then in one action sets the marks of the workplaces that a ZAA has reported to "0"
    /// and notes in `WYKONANE` what was made. Tells of missing months and persons while it goes and at the
    /// end how it went. Reads the personnel tables, `RODZINA`, `KONTA`, `M_PRACY` and what the reports read;
    /// writes `M_PRACY`, `WYKONANE`. Nothing if the clerk stops it: no file is made then and no mark set.
    /// Throws `Blad` that names the file when it cannot be written; then the old file and all marks stay.
    std::optional<WynikKedu> StworzPlik();

private:
    class Strumien;

    void pisz(const DokumentKedu& dokument);
    void piszPracownikow(const DokumentKedu& dokument);
    void piszRodziny(const DokumentKedu& dokument);
    void piszOznaczone(const DokumentKedu& dokument, Recordset& tabela);
    void piszRaport(const DokumentKedu& dokument, const ZamowionyRaport& zamowiony);
    void piszOsobeRaportu(const DokumentKedu& dokument, const RaportMiesieczny& raport, qint64 prcId);
    void piszPrzerwy(const BlokKedu& blok, const RaportMiesieczny& raport, qint64 prcId);
    /// The wrapper and the blocks; a repeated one for each of `wiersze`.
    void piszDokument(const DokumentKedu& dokument, const QList<Wiersz>& wiersze);
    void zapiszZnaki();
    void powiedzCoBrakuje(KodKedu kod, RokMies miesiac, qint64 prcId);
    void powiedzJakPoszlo() const;

    /// Takes up the employee's records; false when one of the five is missing.
    bool ustawPracownika(qint64 prcId);
    /// Those for whom documents are written.
    [[nodiscard]] QList<qint64> pracownicy() const;
    void krok(const DokumentKedu& dokument, qint64 prcId);

    Otoczenie& o_;
    ZamowienieKedu zamowienie_;
    WynikKedu wynik_;
    KontekstKedu k_;
    std::unique_ptr<Strumien> plik_;
    std::unique_ptr<Postep> postep_;
    int krok_ = 0;
    Recordset konta_{schemat::KONTA}, adresy_{schemat::M_PRACY};
};

/// Whether a report of all employees has a block of this one: `ustawiony`, his five records are there; `zus`,
/// his insurance record.
[[nodiscard]] bool MaWierszRaportu(KodKedu kod, bool ustawiony, const std::optional<Wiersz>& zus);

/// The employees who are not dismissed, by their numbers. Reads `PRACDP`, `PRACPR`.
[[nodiscard]] QList<qint64> ListaAktywnych(const Sesja& sesja);

/// The proposal for a report's identifier: "01", month and year.
[[nodiscard]] QString DomyslnyIdentyfikator(RokMies miesiac);

} // namespace tornel::zus
