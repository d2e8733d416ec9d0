// An insurer's document as data: it is a list of blocks, a block is a list of fields in lines. One
// interpreter writes them, the view of a collection reads their captions.
#pragma once
#include "rules/Stale.h"
#include "store/Recordset.h"
#include <array>
#include <optional>
#include <QStringView>
#include <span>
#include <variant>

namespace tornel::zus {

struct DaneRaportu;

/// What a document is written from. A record that is missing counts as null in every column.
struct KontekstKedu {
    /// The employee in three tables, then his family, accounts and workplaces.
    static constexpr std::size_t kTabel = 6;

    const Stale& stale;
    QDate dzis;
    /// The records at hand, by their tables.
    std::array<std::optional<Wiersz>, kTabel> wiersze = {};
    std::array<const TabelaDef*, kTabel> tabele = {};
    const DaneRaportu* raport = nullptr; ///< of the monthly reports
    int typ = 0;                         ///< of ZPA and ZFA, 1 to 3
    int kont = 0;                        ///< `IORB` blocks written in this run
    int adresow = 0;                     ///< `APDG` blocks written in this run

    /// Takes the record of its table, or puts it in the place of the one that was there.
    void ustaw(const TabelaDef& tabela, std::optional<Wiersz> wiersz);
    [[nodiscard]] Wartosc wartosc(Kolumna k) const;
};

/// How a value becomes characters.
enum class Pisarz : quint8 {
    Tekst,         ///< `KeduPole`
    Cyfry,         ///< `KeduCyfry`, then `KeduPole`
    Data,          ///< `KeduData`
    Okres,         ///< `KeduOkres` of two columns
    Kwota,         ///< `KeduKwota`
    Licznik,       ///< `KeduLicznik`
    Znacznik,      ///< `KeduZnacznik`
    Wyksztalcenie, ///< `KeduWyksztalcenie`
    Krzyzyk,       ///< "X" for true and for a text "T" or "t", otherwise a blank
    BezKrzyzyka,   ///< the other way round
    Rowny,         ///< "X" for a number equal to `argument`, otherwise a blank
    Kolejny,       ///< by how much a number exceeds `argument`; a blank when it does not
    Zera,          ///< zeros, whatever the value
};

/// Two columns: parts of a text, each trimmed and put together, or the two ends of a period.
struct DwieKolumny {
    Kolumna pierwsza, druga;
};
/// Two constants, trimmed and put together with `lacznik` between them.
struct DwieStale {
    QString Stale::*pierwsza;
    QString Stale::*druga;
    QStringView lacznik = {};
};
/// A value that takes a rule of its own.
using Liczone = Wartosc (*)(const KontekstKedu&);

using ZrodloPola = std::variant<std::monostate, Kolumna, DwieKolumny, QString Stale::*, QDate Stale::*,
                                bool Stale::*, DwieStale, QStringView, Liczone, QString DaneRaportu::*,
                                Waluta DaneRaportu::*, int DaneRaportu::*>;

struct PoleKedu {
    Pisarz pisarz = Pisarz::Tekst;
    int szer = 0; ///< characters; of `Licznik` at least so many
    ZrodloPola zrodlo = {};
    QStringView napis = {}; ///< what the field means; empty for one that the program leaves empty
    int argument = 0;
    bool wTejLinii = false; ///< stands on the line of the field before it
    /// Without it the line is not written at all.
    bool (*warunek)(const KontekstKedu&) = nullptr;
};

struct BlokKedu {
    QStringView nazwa;
    QStringView opis;
    std::span<const PoleKedu> pola;
};

/// A block of a document; of a repeated one, the table whose rows it is written for.
struct CzescDokumentu {
    const BlokKedu* blok;
    const TabelaDef* powtarzany = nullptr;
};

/// The documents in the order in which a collection carries them.
enum class KodKedu : quint8 { ZUA, ZZA, ZIUA, ZCNA, ZCZA, ZWUA, ZBA, ZAA, ZPA, ZFA, RCA, RNA, RZA, RSA, DRA };
inline constexpr std::size_t kDokumentow = 15;

/// For whom a document is written.
enum class Petla : quint8 {
    Pracownik, ///< for each employee that a column of his insurance record marks
    Rodzina,   ///< for each employee with family members marked 1, then for those marked 2
    Konta,     ///< once, for the bank accounts that are marked
    Adresy,    ///< once, for the workplaces that are marked
    Platnik,   ///< once, by its type
    Raport,    ///< once for a month, with a block for each employee
    Brak,      ///< not written
};

struct DokumentKedu {
    KodKedu kod;
    QStringView nazwa;
    QStringView opis;
    Petla petla;
    std::span<const CzescDokumentu> bloki = {};
    /// Of `Pracownik`: the mark, from 1 to `najwyzszy`. Of `Rodzina`, `Konta` and `Adresy`: the mark, 1 or 2.
    Kolumna znak = {};
    int najwyzszy = 2;
    QStringView pytanieMiesiaca = {}; ///< of `Raport`
    QStringView pytanieIdentyfikatora = {};
};

/// The fifteen documents.
[[nodiscard]] std::span<const DokumentKedu, kDokumentow> DokumentyKedu();
[[nodiscard]] const DokumentKedu& dokumentKedu(KodKedu kod);
/// By its code, whatever its case; null for none.
[[nodiscard]] const DokumentKedu* znajdzDokument(QStringView nazwa);
/// The block of a document by its name, null if the document has none such.
[[nodiscard]] const BlokKedu* znajdzBlok(const DokumentKedu& dokument, QStringView nazwa);

/// The characters of one field.
[[nodiscard]] QString TekstPola(const PoleKedu& pole, const KontekstKedu& k);
/// The lines of a block without its tags.
[[nodiscard]] QStringList LinieBloku(const BlokKedu& blok, const KontekstKedu& k);

} // namespace tornel::zus
