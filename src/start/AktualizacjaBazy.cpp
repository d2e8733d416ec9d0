#include "start/AktualizacjaBazy.h"
#include "common/Blad.h"
#include "common/Pliki.h"
#include "common/PolaKedu.h"
#include "store/Dziennik.h"
#include "store/KopiaPliku.h"
#include "store/ZmianaStruktury.h"
#include <algorithm>
#include <QDir>
#include <QFileInfo>

namespace tornel::start {

namespace {

const QString kTabeleRec = QStringLiteral("Tabele.rec");
const QString kPolaRec = QStringLiteral("Pola.rec");
const QString kRaport = QStringLiteral("Aktua.log");
const QString kKoniecLinii = QStringLiteral("\r\n");
const QString kNieMozna = QStringLiteral(" Nie można przeprowadzić aktualizacji!");

bool taSamaNazwa(const QString& a, const QString& b) { return a.compare(b, Qt::CaseInsensitive) == 0; }

/// The run ends here; its text is shown and reported.
struct KoniecAktualizacji {
    QString tekst;
};

/// One run over the two files.
class Aktualizacja {
public:
    Aktualizacja(Polaczenie& polaczenie, const OtoczenieAktualizacji& otoczenie, Rozmowa& rozmowa)
        : polaczenie_(polaczenie), o_(otoczenie), rozmowa_(rozmowa), zmiana_(polaczenie) {
        raport_ = QStringLiteral("RAPORT Z AKTUALIZACJI BAZY DANYCH") + kKoniecLinii +
                  QStringLiteral("Data aktualizacji:    ") +
                  o_.chwila.toString(QStringLiteral("dd-MM-yyyy")) + kKoniecLinii +
                  QStringLiteral("Godzina aktualizacji: ") + o_.chwila.toString(QStringLiteral("HH-mm-ss")) +
                  kKoniecLinii + kKoniecLinii;
    }

    WynikAktualizacji wykonaj() {
        try {
            const StrukturaBazy nowa = czytajPliki();
            const StrukturaBazy obecna = czytajObecna();
            for (const TabelaStruktury& tabela : nowa.tabele) uzgodnijTabele(tabela, nowa, obecna);
        } catch (const KoniecAktualizacji& koniec) {
            zglos(koniec.tekst);
        }
        raport_ += kKoniecLinii + QStringLiteral("KONIEC PLIKU");
        return wynik_;
    }
    [[nodiscard]] const QString& raport() const { return raport_; }

private:
    void wpiszBlad(const QString& tekst) {
        raport_ += QStringLiteral("ERROR> ") + tekst + kKoniecLinii;
        ++wynik_.bledow;
    }
    void zglos(const QString& tekst) {
        rozmowa_.komunikat(tekst, Styl::Krytyczny);
        wpiszBlad(tekst);
    }
    [[nodiscard]] QString sciezka(const QString& nazwa) const { return QDir(o_.folder).filePath(nazwa); }

    template <typename T, typename Czytaj>
    QList<T> czytajPlik(const QString& nazwa, Czytaj czytaj) const {
        try {
            return czytaj(CzytajPlik(sciezka(nazwa)));
        } catch (const Blad& blad) {
            throw KoniecAktualizacji{QStringLiteral("Nie można odczytać pliku ") + nazwa + u'!' + kNieMozna +
                                     u' ' + blad.komunikat()};
        }
    }

    StrukturaBazy czytajPliki() const {
        for (const QString& nazwa : {kTabeleRec, kPolaRec})
            if (!QFileInfo(sciezka(nazwa)).isFile())
                throw KoniecAktualizacji{QStringLiteral("Brak pliku ") + nazwa +
                                         QStringLiteral(" ze strukturą bazy danych!") + kNieMozna};
        StrukturaBazy wynik{czytajPlik<TabelaStruktury>(kTabeleRec, TabeleZPliku),
                            czytajPlik<PoleStruktury>(kPolaRec, PolaZPliku)};
        for (const auto& [nazwa, pusty] :
             {std::pair(kTabeleRec, wynik.tabele.isEmpty()), std::pair(kPolaRec, wynik.pola.isEmpty())})
            if (pusty) throw KoniecAktualizacji{QStringLiteral("Brak danych w pliku ") + nazwa + kNieMozna};
        return wynik;
    }

    StrukturaBazy czytajObecna() {
        try {
            return PobierzStrukture(polaczenie_);
        } catch (const Blad&) {
            throw KoniecAktualizacji{
                QStringLiteral("Nastąpił błąd podczas pobierania aktualnej struktury bazy danych!") +
                kNieMozna};
        }
    }

    void uzgodnijTabele(const TabelaStruktury& tabela, const StrukturaBazy& nowa,
                        const StrukturaBazy& obecna) {
        if (tabelaMiesiaca(tabela.nazwa)) return;
        const QList<PoleStruktury> pola = nowa.polaTabeli(tabela.id);
        if (pola.isEmpty()) {
            wpiszBlad(QStringLiteral("Nie znaleziono danych dla tabeli ") + tabela.nazwa);
            return;
        }
        const auto jest = std::ranges::find_if(
            obecna.tabele, [&](const TabelaStruktury& t) { return taSamaNazwa(t.nazwa, tabela.nazwa); });
        if (jest == obecna.tabele.end())
            utworz(tabela.nazwa, pola);
        else
            uzgodnijPola(tabela.nazwa, pola, obecna.polaTabeli(jest->id));
    }

    void utworz(const QString& tabela, const QList<PoleStruktury>& pola) {
        polecenie(
            ZmianaStruktury::TekstUtworzenia(tabela), [&] { zmiana_.UtworzTabele(tabela); },
            QStringLiteral("Nastąpił błąd podczas tworzenia nowej tabeli ") + tabela);
        for (const PoleStruktury& p : pola) dodaj(tabela, p, QStringLiteral(" do nowej tabeli "));
    }

    void dodaj(const QString& tabela, const PoleStruktury& pole, const QString& doTabeli) {
        const QString typ = TypSQL(pole.typ, pole.rozmiar);
        polecenie(
            ZmianaStruktury::TekstDodania(tabela, pole.pole, typ),
            [&] { zmiana_.DodajPole(tabela, pole.pole, typ); },
            QStringLiteral("Nastąpił błąd podczas dodawania pola ") + pole.pole + doTabeli + tabela);
    }

    void uzgodnijPola(const QString& tabela, const QList<PoleStruktury>& pola,
                      const QList<PoleStruktury>& obecne) {
        for (const PoleStruktury& p : pola) {
            const auto jest = std::ranges::find_if(
                obecne, [&](const PoleStruktury& o) { return taSamaNazwa(o.pole, p.pole); });
            if (jest == obecne.end()) {
                dodaj(tabela, p, QStringLiteral(" do tabeli "));
            } else if (jest->typ != p.typ || jest->rozmiar != p.rozmiar) {
                const QString typ = TypSQL(p.typ, p.rozmiar);
                polecenie(
                    ZmianaStruktury::TekstZmiany(tabela, p.pole, typ),
                    [&] { zmiana_.ZmienPole(tabela, p.pole, typ); },
                    QStringLiteral("Nastąpił błąd podczas zmiany parametrów pola ") + p.pole +
                        QStringLiteral(" w tabeli ") + tabela);
            }
        }
    }

    void polecenie(const QString& sql, const std::function<void()>& czynnosc, const QString& bladTekst) {
        if (wynik_.kopia.isEmpty()) zrobKopie();
        raport_ += QStringLiteral("EXECUTE> ") + sql + kKoniecLinii;
        try {
            czynnosc();
            ++wynik_.zmian;
        } catch (const Blad& blad) {
            rozmowa_.komunikat(bladTekst + QStringLiteral("\n\n") + blad.komunikat(), Styl::Krytyczny);
            wpiszBlad(bladTekst);
        }
    }

    /// Before the first change; without it nothing is changed.
    void zrobKopie() {
        const QString kopia =
            NazwaKopii(polaczenie_.sciezka(), QStringLiteral("przed-aktualizacja"), o_.chwila);
        try {
            KopiujOtwarta(polaczenie_, kopia);
        } catch (const Blad& blad) {
            throw KoniecAktualizacji{blad.komunikat()};
        }
        wynik_.kopia = kopia;
    }

    Polaczenie& polaczenie_;
    const OtoczenieAktualizacji& o_;
    Rozmowa& rozmowa_;
    ZmianaStruktury zmiana_;
    QString raport_;
    WynikAktualizacji wynik_;
};

void ZapiszRaport(const QString& sciezka, const QString& tekst) { ZapiszPlik(sciezka, windows1250(tekst)); }

} // namespace

bool ZapiszStrukture(Polaczenie& polaczenie, const QString& folder, Rozmowa& rozmowa) {
    if (!rozmowa.pytanie(QStringLiteral("Czy na pewno pobrać strukturę z obecnej bazy danych i zapisać ją do "
                                        "plików ?")))
        return false;
    StrukturaBazy struktura;
    try {
        struktura = PobierzStrukture(polaczenie);
    } catch (const Blad&) {
        rozmowa.komunikat(QStringLiteral("Nastąpił błąd podczas pobierania struktury bazy danych!"),
                          Styl::Krytyczny);
        return false;
    }
    ZapiszPlik(QDir(folder).filePath(kTabeleRec), TabeleDoPliku(struktura));
    ZapiszPlik(QDir(folder).filePath(kPolaRec), PolaDoPliku(struktura));
    rozmowa.komunikat(QStringLiteral("Pliki: Tabele.rec i Pola.rec zostały zapisane."), Styl::Informacja);
    return true;
}

WynikAktualizacji AktualizujBaze(Polaczenie& polaczenie, const OtoczenieAktualizacji& otoczenie,
                                 Rozmowa& rozmowa) {
    const QString plik = QDir(otoczenie.folder).filePath(kRaport);
    WynikAktualizacji wynik;
    QString raport;
    {
        const std::shared_ptr<void> trwa = otoczenie.pokazTrwa ? otoczenie.pokazTrwa() : nullptr;
        Aktualizacja aktualizacja(polaczenie, otoczenie, rozmowa);
        wynik = aktualizacja.wykonaj();
        if (wynik.zmian > 0)
            ZakonczLancuch(polaczenie, QStringLiteral("Aktualizacja struktury bazy danych"),
                           otoczenie.chwila);
        raport = aktualizacja.raport();
        ZapiszRaport(plik, raport);
    }
    if (rozmowa.pytanie(QStringLiteral("Czy pokazać plik z raportem aktualizacji bazy danych ?")) &&
        !(otoczenie.pokazRaport && otoczenie.pokazRaport(plik, raport)))
        rozmowa.komunikat(QStringLiteral("Nie udało się otworzyć pliku ") + plik, Styl::Wykrzyknik);
    return wynik;
}

} // namespace tornel::start
