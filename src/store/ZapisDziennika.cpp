#include "store/ZapisDziennika.h"
#include "common/Blad.h"
#include "store/Komorki.h"
#include "store/Schemat.h"
#include "store/Struktura.h"
#include <algorithm>

namespace tornel::store {

namespace {

/// A packet is written when it has so many bytes, so that a batch needs no more memory than that for a table.
constexpr std::size_t kNajwiekszyPakiet = 32'768;
/// Of more employees an entry says only that they are many.
constexpr std::size_t kNajwiecejOsob = 30;

bool cofana(const PisarzPakietu& pakiet) {
    return !pakiet.szablon() || pakiet.szablon()->slad == Slad::Cofany;
}

/// The statements that made a table of the file and its indexes.
std::vector<std::string> poleceniaWPliku(Polaczenie& polaczenie, const QString& nazwa) {
    Instrukcja i(polaczenie, "SELECT sql FROM sqlite_master WHERE tbl_name=? COLLATE NOCASE AND sql NOT NULL "
                             "ORDER BY type DESC, rowid");
    std::vector<std::string> wynik;
    for (i.wiaz(0, nazwa); i.wiersz();) wynik.emplace_back(i.utf8(0));
    return wynik;
}

std::vector<std::string> poleceniaSchematu(const TabelaDef& szablon, const QString& nazwa) {
    std::vector<std::string> wynik = PoleceniaIndeksow(szablon, nazwa);
    wynik.insert(wynik.begin(), PolecenieTabeli(szablon, nazwa));
    return wynik;
}

/// A value as it stands, whatever the column's type.
void pakujSurowa(PisarzPakietu& pakiet, const Instrukcja& i, int kolumna) {
    switch (i.typ(kolumna)) {
    case SQLITE_NULL:
        return pakiet.null();
    case SQLITE_INTEGER:
        return pakiet.liczba(i.liczba(kolumna));
    case SQLITE_FLOAT:
        return pakiet.rzeczywista(i.rzeczywista(kolumna));
    default:
        return pakiet.tekst(i.utf8(kolumna));
    }
}

} // namespace

void ZapisDziennika::dopiszZdarzenie(const QString& opis, qint64 dotyczy) {
    Transakcja akcja(polaczenie_, opis);
    if (nastepny_ == 0) (void)numer();
    // An action that is open keeps its own number.
    const qint64 id = id_ == nastepny_ ? ++nastepny_ : nastepny_;
    ++nastepny_;
    dopiszWpis({.id = id, .czynnosc = opis, .dotyczy = dotyczy});
    akcja.zatwierdz();
}

qint64 ZapisDziennika::numer() {
    if (nastepny_ == 0) {
        // By the index: state by state.
        Instrukcja ostatni(polaczenie_, "SELECT max(ID) FROM DZIENNIK WHERE STAN=?");
        for (int stan = 0; stan <= static_cast<int>(StanWpisu::Odcieta); ++stan) {
            if (ostatni.wiaz(0, qint64{stan}).wiersz()) nastepny_ = std::max(nastepny_, ostatni.liczba(0));
            ostatni.od_nowa();
        }
        ++nastepny_;
    }
    return nastepny_;
}

PisarzPakietu& ZapisDziennika::pakiet(const QString& tabela, const TabelaDef& szablon) {
    return pakiet(tabela, &szablon, {});
}

PisarzPakietu& ZapisDziennika::pakiet(const QString& tabela, const TabelaDef* szablon,
                                      const QStringList& kolumny) {
    PisarzPakietu*& znany = tabele_[tabela];
    if (!znany) {
        pakiety_.push_back(std::make_unique<PisarzPakietu>(tabela, szablon, kolumny));
        znany = pakiety_.back().get();
    }
    return *znany;
}

void ZapisDziennika::policz(PisarzPakietu& pakiet, qint64 osoba) {
    ++wierszy_;
    if (osoba > 0 && osoby_.size() <= kNajwiecejOsob) osoby_.insert(osoba);
    if (pakiet.rozmiar() >= kNajwiekszyPakiet) wypisz(pakiet);
}

void ZapisDziennika::wypisz(PisarzPakietu& pakiet) {
    if (pakiet.pusty()) return;
    if (id_ == 0) id_ = numer();
    if (!wstawZmiany_)
        wstawZmiany_ = std::make_unique<Instrukcja>(
            polaczenie_, "INSERT INTO DZIENNIK_ZMIANY (WPIS, NR, DANE) VALUES (?,?,?)");
    wstawZmiany_->wiaz(0, id_).wiaz(1, qint64{++nrPakietu_}).wiazBajty(2, pakiet.wydaj()).wykonaj();
}

void ZapisDziennika::utworzonaTabela(const QString& nazwa, const TabelaDef& szablon) {
    if (!polaczenie_.wTransakcji()) return;
    PisarzPakietu& p = pakiet(nazwa, szablon);
    p.zmiana(RodzajZmiany::UtworzonaTabela, 0);
    p.polecenia({});
}

void ZapisDziennika::usuwanaTabela(const QString& nazwa) {
    if (!polaczenie_.wTransakcji()) return;
    const TabelaDef* szablon = schemat::szablonTabeli(nazwa.toStdString());
    std::vector<std::string> polecenia = poleceniaWPliku(polaczenie_, nazwa);
    const bool wedlugSchematu = szablon && polecenia == poleceniaSchematu(*szablon, nazwa);
    QStringList kolumny;
    if (wedlugSchematu) {
        polecenia.clear();
    } else {
        Instrukcja nazwy(polaczenie_, "SELECT name FROM pragma_table_info(?) ORDER BY cid");
        for (nazwy.wiaz(0, nazwa); nazwy.wiersz();) kolumny += nazwy.tekst(0);
        // What this action has changed before was packed by the schema.
        if (PisarzPakietu* wczesniejszy = tabele_.take(nazwa)) wypisz(*wczesniejszy);
    }
    PisarzPakietu& p = pakiet(nazwa, szablon, kolumny);
    const int osoba = p.kolumnaOsoby();
    Instrukcja wiersze(polaczenie_, "SELECT rowid, * FROM " + nazwaSql(nazwa.toStdString()).toStdString() +
                                        " ORDER BY rowid");
    const int ile =
        wedlugSchematu ? static_cast<int>(szablon->kolumny.size()) : static_cast<int>(kolumny.size());
    while (wiersze.wiersz()) {
        p.zmiana(RodzajZmiany::Usuniety, wiersze.liczba(0));
        for (int i = 0; i < ile; ++i) pakujSurowa(p, wiersze, i + 1);
        policz(p, osoba >= 0 ? wiersze.liczba(osoba + 1) : 0);
    }
    p.zmiana(RodzajZmiany::UsunietaTabela, 0);
    p.polecenia(polecenia);
}

QString ZapisDziennika::napisOsob() const {
    if (osoby_.empty()) return {};
    if (osoby_.size() > kNajwiecejOsob) return QStringLiteral("*");
    QString wynik(u',');
    for (const qint64 osoba : osoby_) wynik += QString::number(osoba) + u',';
    return wynik;
}

void ZapisDziennika::dopiszWpis(const NowyWpis& wpis) {
    if (!wstawWpis_)
        wstawWpis_ = std::make_unique<Instrukcja>(
            polaczenie_,
            "INSERT INTO DZIENNIK (STAN, ID, DZIEN, CZAS, KTO, CZYNNOSC, TABELE, WIERSZY, OSOBY, "
            "DOTYCZY) VALUES (?,?,?,?,?,?,?,?,?,?)");
    const QDateTime teraz = teraz_ ? teraz_() : QDateTime();
    constexpr int najdluzszaNazwa = 30;
    Instrukcja& i = *wstawWpis_;
    i.wiaz(0, static_cast<qint64>(wpis.stan)).wiaz(1, wpis.id);
    wiazWartosc(i, 2, teraz.isValid() ? Wartosc(teraz.date()) : Wartosc(Null));
    i.wiaz(3, teraz.time().toString(QStringLiteral("HH:mm:ss")))
        .wiaz(4, kto_ ? kto_().left(najdluzszaNazwa) : QString())
        .wiaz(5, wpis.czynnosc)
        .wiaz(6, wpis.tabele)
        .wiaz(7, wpis.wierszy)
        .wiaz(8, wpis.osoby)
        .wiaz(9, wpis.dotyczy)
        .wykonaj();
}

void ZapisDziennika::dopiszCzynnosc(const QString& czynnosc) {
    QStringList tabele;
    bool doCofniecia = false;
    for (const auto& pakiet : pakiety_) {
        wypisz(*pakiet);
        if (!tabele.contains(pakiet->tabela())) tabele += pakiet->tabela();
        doCofniecia = doCofniecia || cofana(*pakiet);
    }
    if (id_ == 0) return; // nothing was changed
    if (doCofniecia) {
        Instrukcja odetnij(polaczenie_, "UPDATE DZIENNIK SET STAN=? WHERE STAN=?");
        odetnij.wiaz(0, static_cast<qint64>(StanWpisu::Odcieta))
            .wiaz(1, static_cast<qint64>(StanWpisu::Cofnieta))
            .wykonaj();
    }
    dopiszWpis({.id = id_,
                .stan = doCofniecia ? StanWpisu::Wykonana : StanWpisu::Zdarzenie,
                .czynnosc = czynnosc,
                .tabele = tabele.join(QStringLiteral(", ")),
                .wierszy = wierszy_,
                .osoby = napisOsob()});
    nastepny_ = std::max(nastepny_, id_ + 1);
}

void ZapisDziennika::zatwierdzono() {
    tabele_.clear();
    pakiety_.clear();
    id_ = 0;
    nrPakietu_ = 0;
    wierszy_ = 0;
    osoby_.clear();
}

void ZapisDziennika::porzuc() {
    zatwierdzono();
    nastepny_ = 0; // the numbers given meanwhile are free again
}

} // namespace tornel::store
