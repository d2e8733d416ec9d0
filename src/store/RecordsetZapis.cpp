#include "common/Blad.h"
#include "store/Komorki.h"
#include "store/Recordset.h"
#include "store/ZapisDziennika.h"
#include <algorithm>
#include <bit>
#include <QScopeGuard>

namespace tornel::store {

void Recordset::wiazWiersz(Instrukcja& instrukcja, int wiersz) const {
    for (int i = 0; i < szerokosc(); ++i) {
        const Typ typ = tabela_->kolumny[static_cast<std::size_t>(i)].typ;
        const Komorka c = komorka(wiersz, i);
        if (c == kNull) {
            instrukcja.wiazNull(i);
        } else if (jestTekstem(typ)) {
            instrukcja.wiaz(i, puli(c));
        } else if (typ == Typ::Date) {
            instrukcja.wiaz(i, std::string_view(TekstDnia(c)));
        } else if (jestRzeczywista(typ)) {
            instrukcja.wiaz(i, std::bit_cast<double>(c));
        } else {
            instrukcja.wiaz(i, static_cast<qint64>(c));
        }
    }
}

void Recordset::sprawdzKonflikt(int wiersz) {
    if (!czytaj_)
        czytaj_ =
            std::make_unique<Instrukcja>(*polaczenie_, ("SELECT " + listaKolumn(*tabela_) + " FROM " +
                                                        nazwaSql(nazwa_.toStdString()) + " WHERE rowid=?")
                                                           .toStdString());
    // The stored row is read behind the last one for the time of the comparison. Even a row that can no
    // longer be read must leave neither an extra row nor an open statement behind.
    const int obraz = nowyWiersz();
    const auto sprzatanie = qScopeGuard([this] {
        czytaj_->od_nowa();
        komorki_.resize(komorki_.size() - tabela_->kolumny.size());
        rowid_.pop_back();
        stany_.pop_back();
    });
    const std::vector<Komorka>& oryginal = oryginaly_.at(wiersz);
    czytaj_->wiaz(0, rowid_[static_cast<std::size_t>(wiersz)]);
    bool zgodny = czytaj_->wiersz();
    if (zgodny) {
        try {
            czytajWiersz(*czytaj_, obraz, 0, rowid_[static_cast<std::size_t>(wiersz)]);
        } catch (const UszkodzonaWartosc& uszkodzona) {
            throw Konflikt(uszkodzona.komunikat()); // it was sound when it was read
        }
        zgodny = std::equal(oryginal.begin(), oryginal.end(),
                            komorki_.begin() + static_cast<std::ptrdiff_t>(obraz) * szerokosc());
    }
    if (!zgodny)
        throw Konflikt(
            QStringLiteral("Wiersz tabeli %1 został tymczasem zmieniony w bazie. Zmiany nie zapisano.")
                .arg(nazwa_));
}

void Recordset::zapiszWiersz(int wiersz) {
    const auto w = static_cast<std::size_t>(wiersz);
    const auto tabela = [this] { return nazwaSql(nazwa_.toStdString()); };
    if (stany_[w] == Stan::Nowy) {
        if (!wstaw_) {
            QByteArray znaki("?");
            for (int i = 1; i < szerokosc(); ++i) znaki += ",?";
            wstaw_ = std::make_unique<Instrukcja>(
                *polaczenie_,
                ("INSERT INTO " + tabela() + " (" + listaKolumn(*tabela_) + ") VALUES (" + znaki + ")")
                    .toStdString());
        }
        wiazWiersz(*wstaw_, wiersz);
        wstaw_->wykonaj();
        rowid_[w] = polaczenie_->ostatniWiersz();
        return;
    }
    sprawdzKonflikt(wiersz);
    if (stany_[w] == Stan::Usuniety) {
        if (!usun_)
            usun_ = std::make_unique<Instrukcja>(
                *polaczenie_, ("DELETE FROM " + tabela() + " WHERE rowid=?").toStdString());
        usun_->wiaz(0, rowid_[w]).wykonaj();
        return;
    }
    if (!zmien_) {
        QByteArray pola;
        for (const KolumnaDef& k : tabela_->kolumny)
            pola += (pola.isEmpty() ? "" : ", ") + nazwaSql(k.nazwa) + "=?";
        zmien_ = std::make_unique<Instrukcja>(
            *polaczenie_, ("UPDATE " + tabela() + " SET " + pola + " WHERE rowid=?").toStdString());
    }
    wiazWiersz(*zmien_, wiersz);
    zmien_->wiaz(szerokosc(), rowid_[w]).wykonaj();
}

void Recordset::pakujKomorke(PisarzPakietu& pakiet, int kolumna, Komorka wartosc) const {
    const KolumnaDef& k = tabela_->kolumny[static_cast<std::size_t>(kolumna)];
    if (k.tajna) {
        pakiet.tajna();
    } else if (wartosc == kNull) {
        pakiet.null();
    } else if (jestTekstem(k.typ)) {
        const QByteArray utf8 = puli(wartosc).toUtf8();
        pakiet.tekst({utf8.constData(), static_cast<std::size_t>(utf8.size())});
    } else if (k.typ == Typ::Date) {
        pakiet.dzien(wartosc);
    } else if (jestRzeczywista(k.typ)) {
        pakiet.rzeczywista(std::bit_cast<double>(wartosc));
    } else {
        pakiet.liczba(wartosc);
    }
}

void Recordset::zapiszWDzienniku(int wiersz) const {
    ZapisDziennika* dziennik = polaczenie_->dziennik();
    if (!dziennik || tabela_->slad == Slad::Zaden) return;
    const auto w = static_cast<std::size_t>(wiersz);
    const Stan stan = stany_[w];
    const std::vector<Komorka>* przedtem = stan == Stan::Nowy ? nullptr : &oryginaly_.at(wiersz);
    const auto stara = [&](int i) { return (*przedtem)[static_cast<std::size_t>(i)]; };
    std::vector<int> zmienione;
    if (stan == Stan::Zmieniony) {
        for (int i = 0; i < szerokosc(); ++i)
            if (stara(i) != komorka(wiersz, i)) zmienione.push_back(i);
        if (zmienione.empty()) return;
    }
    PisarzPakietu& p = dziennik->pakiet(nazwa_, *tabela_);
    const auto pakuj = [&](int i, Komorka c) { pakujKomorke(p, i, c); };
    if (stan == Stan::Nowy) {
        p.zmiana(RodzajZmiany::Nowy, rowid_[w]);
        for (int i = 0; i < szerokosc(); ++i) pakuj(i, komorka(wiersz, i));
    } else if (stan == Stan::Usuniety) {
        p.zmiana(RodzajZmiany::Usuniety, rowid_[w]);
        for (int i = 0; i < szerokosc(); ++i) pakuj(i, stara(i));
    } else {
        p.zmiana(RodzajZmiany::Zmieniony, rowid_[w]);
        p.ile(zmienione.size());
        for (const int i : zmienione) {
            p.ile(static_cast<std::uint64_t>(i));
            pakuj(i, stara(i));
            pakuj(i, komorka(wiersz, i));
        }
        p.ile(p.kolumnyKlucza().size());
        for (const int i : p.kolumnyKlucza()) {
            p.ile(static_cast<std::uint64_t>(i));
            pakuj(i, komorka(wiersz, i));
        }
    }
    const Komorka osoba = p.kolumnaOsoby() < 0     ? kNull
                          : stan == Stan::Usuniety ? stara(p.kolumnaOsoby())
                                                   : komorka(wiersz, p.kolumnaOsoby());
    dziennik->policz(p, osoba == kNull ? 0 : osoba);
}

void Recordset::zapiszOczekujace(const Transakcja& akcja) {
    if (!akcja.dotyczy(*polaczenie_))
        throw Blad(QStringLiteral("Tabela %1 należy do innego połączenia niż czynność „%2”.")
                       .arg(nazwa_, polaczenie_->czynnosc()));
    for (const int wiersz : oczekujace_) {
        zapiszWiersz(wiersz);
        zapiszWDzienniku(wiersz);
    }
}

void Recordset::uznajZapisane() {
    for (const int wiersz : oczekujace_)
        if (Stan& stan = stany_[static_cast<std::size_t>(wiersz)]; stan != Stan::Usuniety)
            stan = Stan::Czysty;
    oczekujace_.clear();
    oryginaly_.clear();
}

void Recordset::UpdateBatch(const Transakcja& akcja) {
    if (oczekujace_.empty()) return;
    zapiszOczekujace(akcja);
    uznajZapisane();
}

void Recordset::UpdateBatch(QStringView czynnosc) {
    if (oczekujace_.empty()) return;
    Transakcja transakcja(*polaczenie_, czynnosc);
    zapiszOczekujace(transakcja);
    transakcja.zatwierdz();
    uznajZapisane();
}

QList<Kolumna> Recordset::zmienioneKolumny() const {
    QList<Kolumna> wynik;
    const auto przedtem = oryginaly_.find(biezacy());
    if (przedtem == oryginaly_.end()) return wynik;
    for (int i = 0; i < szerokosc(); ++i)
        if (komorka(biezacy(), i) != przedtem->second[static_cast<std::size_t>(i)])
            wynik.append(tabela_->nr(i));
    return wynik;
}

Waluta Recordset::przyrost(Kolumna k) const {
    wymagajKolumny(k, RodzajWartosci::Kwota);
    const auto kwota = [](Komorka c) { return c == kNull ? Waluta{} : Waluta::zSurowej(c); };
    Waluta suma;
    for (const int wiersz : oczekujace_) {
        const Stan stan = stany_[static_cast<std::size_t>(wiersz)];
        if (stan != Stan::Usuniety) suma += kwota(komorka(wiersz, k.nr));
        if (stan != Stan::Nowy) suma -= kwota(oryginaly_.at(wiersz)[static_cast<std::size_t>(k.nr)]);
    }
    return suma;
}

int Recordset::przyrostWierszy() const {
    int wierszy = 0;
    for (const int wiersz : oczekujace_) {
        const Stan stan = stany_[static_cast<std::size_t>(wiersz)];
        wierszy += stan == Stan::Nowy ? 1 : stan == Stan::Usuniety ? -1 : 0;
    }
    return wierszy;
}

void Recordset::CancelBatch() {
    if (oczekujace_.empty()) return;
    const Zakladka tu = Bookmark();
    for (const int wiersz : oczekujace_) {
        Stan& stan = stany_[static_cast<std::size_t>(wiersz)];
        if (stan != Stan::Usuniety) {
            odindeksuj(wiersz);
            usunZKolejnosci(wiersz);
        }
        if (stan == Stan::Nowy) {
            stan = Stan::Usuniety;
            continue;
        }
        const std::vector<Komorka>& oryginal = oryginaly_.at(wiersz);
        std::copy(oryginal.begin(), oryginal.end(),
                  komorki_.begin() + static_cast<std::ptrdiff_t>(wiersz) * szerokosc());
        stan = Stan::Czysty;
        indeksuj(wiersz);
        if (spelnia(wiersz, filtr_)) wstawDoKolejnosci(wiersz);
    }
    oczekujace_.clear();
    oryginaly_.clear();
    Bookmark(tu);
}

} // namespace tornel::store
