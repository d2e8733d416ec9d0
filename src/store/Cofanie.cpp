#include "store/Cofanie.h"
#include "store/Komorki.h"
#include "store/Schemat.h"
#include "store/Struktura.h"
#include <algorithm>
#include <map>

namespace tornel::store {

namespace {

/// So many rows that stand in the way are named; the others are counted.
constexpr qsizetype kNajwiecejPrzeszkod = 5;

void wiazZPliku(Instrukcja& instrukcja, int nr, const WartoscPliku& wartosc) {
    if (const auto* n = std::get_if<qint64>(&wartosc))
        instrukcja.wiaz(nr, *n);
    else if (const auto* r = std::get_if<double>(&wartosc))
        instrukcja.wiaz(nr, *r);
    else if (const auto* t = std::get_if<QByteArray>(&wartosc))
        instrukcja.wiaz(nr, std::string_view(t->constData(), static_cast<std::size_t>(t->size())));
    else
        instrukcja.wiazNull(nr);
}

WartoscPliku surowa(const Instrukcja& instrukcja, int kolumna) {
    switch (instrukcja.typ(kolumna)) {
    case SQLITE_NULL:
        return {};
    case SQLITE_INTEGER:
        return instrukcja.liczba(kolumna);
    case SQLITE_FLOAT:
        return instrukcja.rzeczywista(kolumna);
    default: {
        const std::string_view t = instrukcja.utf8(kolumna);
        return QByteArray(t.data(), static_cast<qsizetype>(t.size()));
    }
    }
}

/// Whether the file holds the value there.
bool stoi(const Instrukcja& instrukcja, int kolumna, const WartoscPliku& wartosc) {
    const auto* t = std::get_if<QByteArray>(&wartosc);
    if (!t) return rownaWPliku(surowa(instrukcja, kolumna), wartosc);
    return instrukcja.typ(kolumna) == SQLITE_TEXT &&
           instrukcja.utf8(kolumna) == std::string_view(t->constData(), static_cast<std::size_t>(t->size()));
}

QString napisWartosci(const WartoscPliku& wartosc) {
    if (const auto* n = std::get_if<qint64>(&wartosc)) return QString::number(*n);
    if (const auto* t = std::get_if<QByteArray>(&wartosc)) return QString::fromUtf8(*t);
    return {};
}

/// Applies the changes of an action, or their inverse, and collects what stands in the way.
class Odtwarzanie {
public:
    Odtwarzanie(Polaczenie& polaczenie, Kierunek kierunek) : polaczenie_(polaczenie), kierunek_(kierunek) {}

    void zastosuj(const PakietZmian& pakiet) {
        if (pakiet.szablon && pakiet.szablon->slad != Slad::Cofany) return; // what happened stays so
        if (!pakiet.znaneKolumny) {
            przeszkoda(QStringLiteral("tabela %1 ma teraz inną budowę").arg(pakiet.tabela));
            return;
        }
        if (kierunek_ == Kierunek::Cofnij)
            std::for_each(pakiet.zmiany.rbegin(), pakiet.zmiany.rend(),
                          [&](const ZmianaWiersza& z) { zastosuj(pakiet, z); });
        else
            for (const ZmianaWiersza& z : pakiet.zmiany) zastosuj(pakiet, z);
    }

    [[nodiscard]] QString przeszkody() const {
        if (przeszkody_.isEmpty()) return {};
        const qsizetype dalszych = przeszkody_.size() - kNajwiecejPrzeszkod;
        return przeszkody_.mid(0, kNajwiecejPrzeszkod).join(QStringLiteral("; ")) +
               (dalszych > 0 ? QStringLiteral(" i dalsze (%1)").arg(dalszych) : QString());
    }

private:
    struct Polecenia {
        std::unique_ptr<Instrukcja> czytaj, wstaw, zmien, usun;
    };
    /// The table's statements; null when the file has no such table.
    Polecenia* poleceniaTabeli(const QString& nazwa) {
        const auto znane = polecenia_.find(nazwa);
        if (znane != polecenia_.end()) return &znane->second;
        return polaczenie_.jestTabela(nazwa) ? &polecenia_[nazwa] : nullptr;
    }

    [[nodiscard]] bool wstecz() const { return kierunek_ == Kierunek::Cofnij; }
    /// What the column has to hold now, and what it gets.
    [[nodiscard]] const WartoscPliku& jest(const ZmianaKolumny& k) const {
        return wstecz() ? k.nowa : k.stara;
    }
    [[nodiscard]] const WartoscPliku& bedzie(const ZmianaKolumny& k) const {
        return wstecz() ? k.stara : k.nowa;
    }

    void przeszkoda(const QString& opis) {
        if (!przeszkody_.contains(opis)) przeszkody_ += opis;
    }
    /// "wiersz tabeli PLA200107 (PRC_ID 5, LISTA A) ..."
    void przeszkoda(const PakietZmian& pakiet, const ZmianaWiersza& z, const QString& co) {
        QStringList klucz;
        for (const std::vector<ZmianaKolumny>* kolumny : {&z.kolumny, &z.klucz})
            for (const ZmianaKolumny& k : *kolumny) {
                const std::string nazwa = pakiet.kolumny[k.nr].toStdString();
                const bool nazywa = kolumny == &z.klucz ||
                                    (z.klucz.empty() && pakiet.szablon &&
                                     (teSameNazwy(nazwa, "PRC_ID") ||
                                      std::ranges::any_of(pakiet.szablon->klucz, [&](std::string_view n) {
                                          return teSameNazwy(n, nazwa);
                                      })));
                const QString wartosc =
                    napisWartosci(std::holds_alternative<std::monostate>(k.nowa) ? k.stara : k.nowa);
                if (nazywa && !wartosc.isEmpty()) klucz += pakiet.kolumny[k.nr] + u' ' + wartosc;
            }
        przeszkoda(QStringLiteral("wiersz tabeli %1%2 %3")
                       .arg(pakiet.tabela,
                            klucz.isEmpty() ? QString()
                                            : QStringLiteral(" (%1)").arg(klucz.join(QStringLiteral(", "))),
                            co));
    }

    void zastosuj(const PakietZmian& pakiet, const ZmianaWiersza& z) {
        const bool tworzy =
            z.rodzaj == (wstecz() ? RodzajZmiany::UsunietaTabela : RodzajZmiany::UtworzonaTabela);
        const bool dodaje = z.rodzaj == (wstecz() ? RodzajZmiany::Usuniety : RodzajZmiany::Nowy);
        if (tworzy)
            utworzTabele(pakiet, z);
        else if (z.rodzaj == RodzajZmiany::UtworzonaTabela || z.rodzaj == RodzajZmiany::UsunietaTabela)
            usunTabele(pakiet);
        else if (!poleceniaTabeli(pakiet.tabela))
            przeszkoda(QStringLiteral("nie ma już tabeli %1").arg(pakiet.tabela));
        else if (z.rodzaj == RodzajZmiany::Zmieniony)
            zmien(pakiet, z);
        else if (dodaje)
            wstaw(pakiet, z);
        else
            usun(pakiet, z);
    }

    [[nodiscard]] static std::string tabela(const PakietZmian& p) {
        return nazwaSql(p.tabela.toStdString()).toStdString();
    }
    template <typename F>
    Instrukcja& polecenie(std::unique_ptr<Instrukcja>& gotowe, F tekst) {
        if (!gotowe) gotowe = std::make_unique<Instrukcja>(polaczenie_, tekst());
        return *gotowe;
    }

    /// Reads a row of the table by its number.
    Instrukcja& wiersz(const PakietZmian& p) {
        return polecenie(polecenia_[p.tabela].czytaj, [&] {
            std::string sql;
            for (const QString& k : p.kolumny)
                sql += (sql.empty() ? "SELECT " : ", ") + nazwaSql(k.toStdString()).toStdString();
            return sql + " FROM " + tabela(p) + " WHERE rowid=?";
        });
    }
    [[nodiscard]] bool jestWiersz(const PakietZmian& p, qint64 nrWiersza) {
        Instrukcja& i = wiersz(p);
        const bool wynik = i.wiaz(0, nrWiersza).wiersz();
        i.od_nowa();
        return wynik;
    }
    /// The statement at the stored row when that is as it has to be; otherwise it stands in the way, and
    /// null. The values are compared where they stand: of a batch they are millions.
    Instrukcja* sprawdzony(const PakietZmian& p, const ZmianaWiersza& z) {
        Instrukcja& i = wiersz(p);
        const char* uwaga = nullptr;
        if (!i.wiaz(0, z.nrWiersza).wiersz())
            uwaga = "został potem usunięty";
        else if (!std::ranges::all_of(z.kolumny,
                                      [&](const ZmianaKolumny& k) { return stoi(i, k.nr, jest(k)); }))
            uwaga = "został potem zmieniony";
        if (!uwaga) return &i;
        i.od_nowa();
        przeszkoda(p, z, QString::fromUtf8(uwaga));
        return nullptr;
    }

    /// Runs a change of one row; a key that is taken meanwhile stands in the way.
    void uruchom(Instrukcja& i, const PakietZmian& p, const ZmianaWiersza& z) {
        try {
            i.wykonaj();
        } catch (const BladBazy&) {
            if ((sqlite3_errcode(polaczenie_.uchwyt()) & 0xff) != SQLITE_CONSTRAINT) throw;
            przeszkoda(p, z, QStringLiteral("ma klucz, który zajął potem inny wiersz"));
        }
    }

    void zmien(const PakietZmian& p, const ZmianaWiersza& z) {
        Instrukcja* stary = sprawdzony(p, z);
        if (!stary) return;
        std::vector<WartoscPliku> nowy(static_cast<std::size_t>(p.kolumny.size()));
        for (std::size_t k = 0; k < nowy.size(); ++k) nowy[k] = surowa(*stary, static_cast<int>(k));
        stary->od_nowa();
        Instrukcja& i = polecenie(polecenia_[p.tabela].zmien, [&] {
            std::string sql;
            for (const QString& k : p.kolumny)
                sql += (sql.empty() ? " SET " : ", ") + nazwaSql(k.toStdString()).toStdString() + "=?";
            return "UPDATE " + tabela(p) + sql + " WHERE rowid=?";
        });
        for (const ZmianaKolumny& k : z.kolumny) nowy[static_cast<std::size_t>(k.nr)] = bedzie(k);
        int nr = 0;
        for (const WartoscPliku& w : nowy) wiazZPliku(i, nr++, w);
        i.wiaz(nr, z.nrWiersza);
        uruchom(i, p, z);
    }

    void wstaw(const PakietZmian& p, const ZmianaWiersza& z) {
        if (jestWiersz(p, z.nrWiersza)) {
            przeszkoda(p, z, QStringLiteral("ma w pliku miejsce, które zajął potem inny wiersz"));
            return;
        }
        Instrukcja& i = polecenie(polecenia_[p.tabela].wstaw, [&] {
            std::string nazwy = "rowid", znaki = "?";
            for (const QString& k : p.kolumny) {
                nazwy += ", " + nazwaSql(k.toStdString()).toStdString();
                znaki += ",?";
            }
            return "INSERT INTO " + tabela(p) + " (" + nazwy + ") VALUES (" + znaki + ")";
        });
        i.wiaz(0, z.nrWiersza);
        for (const ZmianaKolumny& k : z.kolumny) wiazZPliku(i, k.nr + 1, bedzie(k));
        uruchom(i, p, z);
    }

    void usun(const PakietZmian& p, const ZmianaWiersza& z) {
        Instrukcja* stary = sprawdzony(p, z);
        if (!stary) return;
        stary->od_nowa();
        Instrukcja& i = polecenie(polecenia_[p.tabela].usun,
                                  [&] { return "DELETE FROM " + tabela(p) + " WHERE rowid=?"; });
        i.wiaz(0, z.nrWiersza).wykonaj();
    }

    void utworzTabele(const PakietZmian& p, const ZmianaWiersza& z) {
        if (polaczenie_.jestTabela(p.tabela)) {
            przeszkoda(QStringLiteral("tabela %1 jest już w bazie").arg(p.tabela));
            return;
        }
        if (!z.polecenia.isEmpty()) {
            for (const QString& sql : z.polecenia) polaczenie_.wykonaj(sql.toStdString());
        } else if (p.szablon) {
            polaczenie_.wykonaj(PolecenieTabeli(*p.szablon, p.tabela));
            UtworzIndeksy(polaczenie_, *p.szablon, p.tabela);
        }
    }

    void usunTabele(const PakietZmian& p) {
        if (!polaczenie_.jestTabela(p.tabela)) {
            przeszkoda(QStringLiteral("nie ma już tabeli %1").arg(p.tabela));
            return;
        }
        polecenia_.erase(p.tabela);
        {
            Instrukcja i(polaczenie_, "SELECT 1 FROM " + tabela(p) + " LIMIT 1");
            if (i.wiersz()) {
                przeszkoda(QStringLiteral("w tabeli %1 są wiersze, które przybyły potem").arg(p.tabela));
                return;
            }
        }
        polaczenie_.wykonaj("DROP TABLE " + tabela(p));
    }

    Polaczenie& polaczenie_;
    Kierunek kierunek_;
    QStringList przeszkody_;
    std::map<QString, Polecenia> polecenia_;
};

} // namespace

std::optional<WpisDziennika> Cofanie::nastepna(Kierunek kierunek) const {
    const bool wstecz = kierunek == Kierunek::Cofnij;
    Instrukcja i(polaczenie_, std::string("SELECT ID, CZYNNOSC, KTO, TABELE, DZIEN, CZAS FROM DZIENNIK WHERE "
                                          "STAN=? ORDER BY ID") +
                                  (wstecz ? " DESC LIMIT 1" : " LIMIT 1"));
    const StanWpisu stan = wstecz ? StanWpisu::Wykonana : StanWpisu::Cofnieta;
    if (!i.wiaz(0, static_cast<qint64>(stan)).wiersz()) return std::nullopt;
    WpisDziennika wpis;
    wpis.id = i.liczba(0);
    wpis.stan = stan;
    wpis.czynnosc = i.tekst(1);
    wpis.kto = i.tekst(2);
    wpis.tabele = i.tekst(3).split(QStringLiteral(", "), Qt::SkipEmptyParts);
    if (const auto dzien = dzienZTekstu(i.utf8(4))) wpis.dzien = QDate::fromJulianDay(*dzien);
    wpis.czas = i.tekst(5);
    return wpis;
}

QString Cofanie::plikCzynnosci(const WpisDziennika& wpis) const {
    if (!wpis.tabele.contains(napis(schemat::WYKONANE.nazwa))) return {};
    PakietyWpisu pakiety(polaczenie_, wpis.id, KolejnoscPakietow::Naprzod);
    QString plik;
    while (const auto pakiet = pakiety.nastepny()) {
        if (pakiet->szablon != &schemat::WYKONANE) continue;
        for (const ZmianaWiersza& z : pakiet->zmiany)
            if (z.rodzaj == RodzajZmiany::Nowy)
                plik = napisWartosci(z.kolumny[static_cast<std::size_t>(schemat::WYKONANE("PLIK").nr)].nowa);
    }
    return plik;
}

WpisDziennika Cofanie::wykonaj(Kierunek kierunek) {
    const bool wstecz = kierunek == Kierunek::Cofnij;
    const std::optional<WpisDziennika> wpis = nastepna(kierunek);
    if (!wpis || !polaczenie_.dziennik())
        throw OdmowaCofniecia(wstecz ? QStringLiteral("Nie ma czynności do cofnięcia.")
                                     : QStringLiteral("Nie ma czynności do ponowienia."));
    const QString nazwa =
        (wstecz ? QStringLiteral("Cofnięcie: %1") : QStringLiteral("Ponowienie: %1")).arg(wpis->czynnosc);
    Transakcja akcja(polaczenie_, nazwa);
    Odtwarzanie odtwarzanie(polaczenie_, kierunek);
    {
        PakietyWpisu pakiety(polaczenie_, wpis->id,
                             wstecz ? KolejnoscPakietow::Wstecz : KolejnoscPakietow::Naprzod);
        while (const auto pakiet = pakiety.nastepny()) odtwarzanie.zastosuj(*pakiet);
    }
    if (const QString przeszkody = odtwarzanie.przeszkody(); !przeszkody.isEmpty())
        throw OdmowaCofniecia(
            (wstecz ? QStringLiteral("Nie można cofnąć czynności „%1”: %2. Nic nie zostało zmienione.")
                    : QStringLiteral("Nie można ponowić czynności „%1”: %2. Nic nie zostało zmienione."))
                .arg(wpis->czynnosc, przeszkody));
    Instrukcja stan(polaczenie_, "UPDATE DZIENNIK SET STAN=? WHERE STAN=? AND ID=?");
    stan.wiaz(0, static_cast<qint64>(wstecz ? StanWpisu::Cofnieta : StanWpisu::Wykonana))
        .wiaz(1, static_cast<qint64>(wpis->stan))
        .wiaz(2, wpis->id)
        .wykonaj();
    polaczenie_.dziennik()->dopiszZdarzenie(nazwa, wpis->id);
    akcja.zatwierdz();
    return *wpis;
}

} // namespace tornel::store
