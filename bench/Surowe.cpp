#include "bench/Surowe.h"
#include "store/Struktura.h"
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <sqlite3.h>

using namespace tornel::start;

namespace {

/// All values of a table as they stand in the file, so that the writing alone is measured.
struct SuroweWiersze {
    std::string nazwa;
    int kolumn = 0;
    std::vector<sqlite3_value*> wartosci;
    ~SuroweWiersze() {
        for (sqlite3_value* w : wartosci) sqlite3_value_free(w);
    }
};

void wczytaj(sqlite3* baza, SuroweWiersze& cel) {
    sqlite3_stmt* s = nullptr;
    sqlite3_prepare_v2(baza, ("SELECT * FROM " + cel.nazwa).c_str(), -1, &s, nullptr);
    cel.kolumn = sqlite3_column_count(s);
    while (sqlite3_step(s) == SQLITE_ROW)
        for (int k = 0; k < cel.kolumn; ++k)
            cel.wartosci.push_back(sqlite3_value_dup(sqlite3_column_value(s, k)));
    sqlite3_finalize(s);
}

void wpisz(sqlite3* baza, const SuroweWiersze& wiersze) {
    std::string znaki("?");
    for (int k = 1; k < wiersze.kolumn; ++k) znaki += ",?";
    sqlite3_stmt* s = nullptr;
    sqlite3_prepare_v2(baza, ("INSERT INTO " + wiersze.nazwa + " VALUES (" + znaki + ")").c_str(), -1, &s,
                       nullptr);
    for (std::size_t w = 0; w < wiersze.wartosci.size(); w += static_cast<std::size_t>(wiersze.kolumn)) {
        for (int k = 0; k < wiersze.kolumn; ++k)
            sqlite3_bind_value(s, k + 1, wiersze.wartosci[w + static_cast<std::size_t>(k)]);
        sqlite3_step(s);
        sqlite3_reset(s);
    }
    sqlite3_finalize(s);
}

} // namespace

double ZapiszSurowo(Sesja& sesja, int miesiac) {
    const QString plik = QDir::temp().filePath(QStringLiteral("tornel-bench/surowa.mdb"));
    QFile::remove(plik);
    UtworzBaze(plik);
    Polaczenie cel(plik, Polaczenie::Sposob::Istniejaca);
    std::vector<SuroweWiersze> tabele(schemat::TabeleMiesiaca.size());
    for (std::size_t i = 0; i < tabele.size(); ++i) {
        const QString nazwa = Sesja::nazwaMiesiaca(schemat::TabeleMiesiaca[i]->nazwa, 2001, miesiac);
        UtworzTabele(cel, *schemat::TabeleMiesiaca[i], nazwa);
        tabele[i].nazwa = nazwa.toStdString();
        wczytaj(sesja.cnPlace.uchwyt(), tabele[i]);
    }
    QElapsedTimer zegar;
    zegar.start();
    cel.wykonaj("BEGIN");
    for (const SuroweWiersze& tabela : tabele) wpisz(cel.uchwyt(), tabela);
    cel.wykonaj("COMMIT");
    return static_cast<double>(zegar.nsecsElapsed()) / 1e9;
}

double CzytajSurowo(Sesja& sesja, std::initializer_list<const char*> tabele) {
    QElapsedTimer zegar;
    zegar.start();
    qint64 suma = 0;
    for (const char* tabela : tabele) {
        sqlite3_stmt* s = nullptr;
        sqlite3_prepare_v2(sesja.cnPlace.uchwyt(), (std::string("SELECT * FROM ") + tabela).c_str(), -1, &s,
                           nullptr);
        const int kolumn = sqlite3_column_count(s);
        while (sqlite3_step(s) == SQLITE_ROW)
            for (int k = 0; k < kolumn; ++k)
                suma += sqlite3_column_type(s, k) == SQLITE_TEXT ? *sqlite3_column_text(s, k)
                                                                 : sqlite3_column_int64(s, k);
        sqlite3_finalize(s);
    }
    const auto czas = static_cast<double>(zegar.nsecsElapsed()) / 1e9;
    return suma == 1 ? 0 : czas; // the sum is used, so that the reading is not left out
}
