// A firm with a journal, random actions of every kind, and the file as it stands table by table.
#pragma once
#include "payroll/lista/ListaPlac.h"
#include "payroll/miesiace/Miesiace.h"
#include "payroll/nadgodziny/Nadgodziny.h"
#include "personnel/Pracownicy.h"
#include "rules/CofanieCzynnosci.h"
#include "rules/Wykonane.h"
#include "start/Rozruch.h"
#include "store/TabelaCsv.h"
#include "wsparcie/Przestrzen.h"
#include "wsparcie/RozmowaZgoda.h"
#include <functional>
#include <gtest/gtest.h>
#include <QFile>
#include <QSet>
#include <QTemporaryDir>
#include <random>

namespace tornel::testy {

/// Every table but the journal: statements and rows with their numbers. Papers that were printed stay so.
inline QStringList obrazTabel(Polaczenie& baza) {
    QStringList wynik, tabele;
    Instrukcja nazwy(baza,
                     "SELECT name, sql FROM sqlite_master WHERE name NOT LIKE '%DZIENNIK%' ORDER BY name");
    while (nazwy.wiersz()) {
        wynik += nazwy.tekst(0) + u' ' + nazwy.tekst(1);
        if (nazwy.tekst(1).startsWith(QLatin1String("CREATE TABLE"))) tabele += nazwy.tekst(0);
    }
    for (const QString& tabela : tabele) {
        if (tabela == QLatin1String("WYKONANE")) continue;
        Instrukcja wiersze(baza, "SELECT rowid, * FROM " + nazwaSql(tabela.toStdString()).toStdString() +
                                     " ORDER BY rowid");
        const int kolumn = [&] {
            Instrukcja ile(baza, "SELECT count(*) FROM pragma_table_info(?)");
            return ile.wiaz(0, tabela).wiersz() ? static_cast<int>(ile.liczba(0)) : 0;
        }();
        while (wiersze.wiersz()) {
            QString wiersz = tabela;
            for (int i = 0; i <= kolumn; ++i)
                wiersz += QStringLiteral("|%1:").arg(wiersze.typ(i)) + wiersze.tekst(i);
            wynik += wiersz;
        }
    }
    return wynik;
}

/// The first lines that differ, for the message of a test.
inline std::string roznice(const QStringList& a, const QStringList& b) {
    std::string wynik;
    for (const auto& [lewa, prawa, znak] : {std::tuple(&a, &b, "- "), std::tuple(&b, &a, "+ ")}) {
        const QSet<QString> tam(prawa->begin(), prawa->end());
        int ile = 0;
        for (const QString& linia : *lewa)
            if (!tam.contains(linia) && ++ile <= 3) wynik += znak + linia.left(300).toStdString() + "\n";
    }
    return wynik;
}

using Los = std::mt19937;
inline int los(Los& l, int od, int do_) { return std::uniform_int_distribution(od, do_)(l); }

/// The month in which everything happens, made when it is missing.
inline RokMies wybranyMiesiac(Los& l) { return {2001, los(l, 6, 8)}; }

inline bool jestMiesiac(Otoczenie& o, RokMies m) { return o.sesja.ZnajdzMiesiac(m); }

inline void dodajNaListe(Otoczenie& o, Los& l) {
    const RokMies m = wybranyMiesiac(l);
    if (!jestMiesiac(o, m)) return;
    QList<qint64> osoby;
    for (int i = 0; i < 8; ++i) osoby += los(l, 1, 12);
    (void)ListaPlac(o, m.rok, m.mies, QString(QChar(u'A' + los(l, 0, 1)))).DodajPracownikow(osoby);
}

/// The row of somebody on the list; nothing happens when the month is missing or empty.
inline void naWierszu(Otoczenie& o, Los& l, const std::function<void(ListaPlac&)>& czynnosc) {
    const RokMies m = wybranyMiesiac(l);
    if (!jestMiesiac(o, m)) return;
    ListaPlac lista(o, m.rok, m.mies, QStringLiteral(" "));
    if (o.sesja.rsPLA.RecordCount() == 0) return;
    o.sesja.rsPLA.MoveFirst();
    for (int i = los(l, 0, o.sesja.rsPLA.RecordCount() - 1); i > 0; --i) o.sesja.rsPLA.MoveNext();
    lista.Wypisz_daneP(
        {o.sesja.rsPLA.liczba(schemat::PLA("PRC_ID")), o.sesja.rsPLA.tekst(schemat::PLA("LISTA"))});
    czynnosc(lista);
}

inline void zmienKonta(Otoczenie& o, Los& l) {
    Recordset& rs = o.sesja.rsKONTA;
    rs.Open(o.sesja.cnPlace);
    for (int i = 0; i < 5; ++i) {
        const int nr = los(l, 1, 9);
        if (!rs.Znajdz(qint64{nr}))
            rs.AddNewZero(nr);
        else if (los(l, 0, 1) == 0)
            rs.Delete();
        else
            rs.ustaw(schemat::KONTA("nazwa"), QStringLiteral("Bank „Żółw” %1").arg(los(l, 0, 99)));
    }
    rs.UpdateBatch(u"Konta bankowe");
}

struct RodzajCzynnosci {
    const char* nazwa;
    void (*wykonaj)(Otoczenie&, Los&);
};

/// Every kind of writing action, each with its own choice of rows.
inline const RodzajCzynnosci kRodzajeCzynnosci[] = {
    {"new month",
     [](Otoczenie& o, Los& l) {
         const RokMies m = wybranyMiesiac(l);
         (void)Miesiace(o).Nowy_miesiac([m] { return m; });
     }},
    {"deleted month",
     [](Otoczenie& o, Los& l) {
         const RokMies m = wybranyMiesiac(l);
         if (los(l, 0, 2) == 0 && jestMiesiac(o, m)) (void)Miesiace(o).Usun_miesiac(m);
     }},
    {"batch", dodajNaListe},
    {"typed amount",
     [](Otoczenie& o, Los& l) {
         naWierszu(o, l, [&](ListaPlac& lista) {
             lista.ZmienKwote(poleListy(u"txtFEPC"), Waluta::zlotych(los(l, 0, 500)));
         });
     }},
    {"deleted row",
     [](Otoczenie& o, Los& l) { naWierszu(o, l, [](ListaPlac& lista) { lista.Usun_prac(); }); }},
    {"new employee",
     [](Otoczenie& o, Los& l) {
         const int nr = los(l, 1, 15);
         if (!o.sesja.UstawPracownika(nr))
             (void)Pracownicy(o).NowyPracownik({nr, QStringLiteral("Żak %1").arg(nr), QStringLiteral("Ewa")});
     }},
    {"deleted employee",
     [](Otoczenie& o, Los& l) {
         const int nr = los(l, 1, 15);
         if (o.sesja.UstawPracownika(nr)) (void)Pracownicy(o).UsunPracownika(nr);
     }},
    {"overtime list",
     [](Otoczenie& o, Los& l) {
         const RokMies m = wybranyMiesiac(l);
         payroll::Nadgodziny nadgodziny(o);
         if (!nadgodziny.NowaLista([m] { return m; })) (void)nadgodziny.UsunListe(m);
     }},
    {"constant",
     [](Otoczenie& o, Los& l) {
         Recordset& rs = o.sesja.rsKON;
         if (!rs.Znajdz(qint64{300})) return;
         rs.ustaw(schemat::KON("Wart"), QStringLiteral("Firma %1").arg(los(l, 0, 9)));
         rs.UpdateBatch(u"Stałe programu");
     }},
    {"address book", zmienKonta},
    {"import",
     [](Otoczenie& o, Los& l) {
         QByteArray csv = "NR;Nazwa\n";
         for (int i = 0; i < 3; ++i)
             csv += QByteArray::number(10 * i + los(l, 1, 9)) + ";Bank " + QByteArray::number(los(l, 0, 99)) +
                    "\n";
         (void)ImportujTabele(o.sesja.cnPlace, ZnajdzTabele(o.sesja.cnPlace, QStringLiteral("KONTA")), csv);
     }},
    {"printed paper",
     [](Otoczenie& o, Los& l) {
         Wykonane(o.sesja).dopisz({{.rodzaj = QStringLiteral("proba"), .komu = los(l, 1, 9)}}, {});
     }},
};

/// Undoes or makes again all that can be; how much that was.
inline int wszystko(Otoczenie& o, const QString& folder, Kierunek kierunek) {
    int ile = 0;
    while (Cofanie(o.sesja.cnPlace).nastepna(kierunek)) {
        (void)CofnijLubPonow(o, folder, kierunek);
        ++ile;
    }
    return ile;
}

inline void losowaCzynnosc(Otoczenie& o, Los& l) {
    kRodzajeCzynnosci[los(l, 0, static_cast<int>(std::size(kRodzajeCzynnosci)) - 1)].wykonaj(o, l);
}

class DziennikTestowy : public testing::Test {
protected:
    static void SetUpTestSuite() {
        wzorzec_ = std::make_unique<QTemporaryDir>();
        RozmowaZgoda zgoda;
        const QString plik = wzorzec_->filePath(QStringLiteral("Tornel.mdb"));
        UtworzBazeZSzablonu(plik, wzorzec_->path(), zgoda);
        Program program(plik, wzorzec_->path(), zgoda);
        for (int i = 1; i <= 12; ++i)
            (void)Pracownicy(program.otoczenie())
                .NowyPracownik({i, QStringLiteral("Nowak %1").arg(i), QStringLiteral("Anna")});
        (void)Miesiace(program.otoczenie()).Nowy_miesiac([] { return std::optional(RokMies{2001, 7}); });
    }
    static void TearDownTestSuite() { wzorzec_.reset(); }
    DziennikTestowy() {
        EXPECT_TRUE(QFile::copy(wzorzec_->filePath(QStringLiteral("Tornel.mdb")), plik_));
        otworz();
    }

    void otworz() {
        program_.reset();
        program_ = std::make_unique<Program>(plik_, folder_.path(), zgoda_);
        baza().wykonaj("PRAGMA synchronous=OFF"); // no power cut here
    }
    Otoczenie& o() { return program_->otoczenie(); }
    Polaczenie& baza() { return program_->sesja().cnPlace; }
    std::optional<WpisDziennika> cofnij() { return CofnijLubPonow(o(), folder_.path(), Kierunek::Cofnij); }
    std::optional<WpisDziennika> ponow() { return CofnijLubPonow(o(), folder_.path(), Kierunek::Ponow); }
    bool mozna(Kierunek kierunek) { return Cofanie(baza()).nastepna(kierunek).has_value(); }
    QString odmowa(Kierunek kierunek) {
        try {
            (void)CofnijLubPonow(o(), folder_.path(), kierunek);
        } catch (const OdmowaCofniecia& odmowa) {
            return odmowa.komunikat();
        }
        return {};
    }
    void konto(int nr, const QString& nazwa) {
        Recordset& rs = program_->sesja().rsKONTA;
        rs.Open(baza());
        if (!rs.Znajdz(qint64{nr})) rs.AddNewZero(nr);
        rs.ustaw(schemat::KONTA("nazwa"), nazwa);
        rs.UpdateBatch(u"Konto bankowe");
    }

    QTemporaryDir folder_;
    const QString plik_ = folder_.filePath(QStringLiteral("Tornel.mdb"));
    RozmowaZgoda zgoda_;
    std::unique_ptr<Program> program_;

private:
    inline static std::unique_ptr<QTemporaryDir> wzorzec_;
};

} // namespace tornel::testy
