// The batches of the open list.
#include "common/Blad.h"
#include "common/Rozmowa.h"
#include "payroll/lista/KolumnyWiersza.h"
#include "payroll/lista/ListaPlac.h"
#include "rules/Stale.h"
#include "store/Seria.h"
#include "store/Sesja.h"

namespace tornel::payroll {

using schemat::PLA;

namespace {

QStringList tekstyDlaSerii(const ListaUwag& uwagi) {
    QStringList teksty;
    for (const Uwaga& uwaga : uwagi)
        if (uwaga.dotyczy(Zakres::Seria)) teksty.append(uwaga.tekst);
    return teksty;
}

QString nazwaSerii(const QList<Obliczenie>& obliczenia) {
    if (obliczenia.size() > 1) return QStringLiteral("Przepisanie i przeliczenie listy płac");
    switch (obliczenia.first()) {
    case Obliczenie::PoliczenieDni:
        return QStringLiteral("Przeliczenie dni na liście płac");
    case Obliczenie::Przepisanie:
        return QStringLiteral("Przepisanie składników na listę płac");
    default:
        return QStringLiteral("Przeliczenie listy płac");
    }
}

/// Looks for questions; what fails here fails again in the calculation, which names the employee.
void pomijajacUszkodzonych(const std::function<void()>& szukanie) {
    try {
        szukanie();
    } catch (const BladBazy&) {
        throw;
    } catch (const Blad&) {
        return;
    }
}

} // namespace

RaportSerii ListaPlac::wykonajSerie(const QString& czynnosc, const Seria& seria) {
    Pobierz_Akt();
    CofnijWiersz();
    zrodla_.przygotuj(seria.ile);
    const auto odpowiedzi = Zapytaj(o_.rozmowa, tytul(), seria.pytania(), Zakres::Seria);
    if (!odpowiedzi) {
        if (wiersz_) ustawNa(KluczListy(*wiersz_));
        RaportSerii raport;
        raport.przerwana = true;
        return raport;
    }
    const AkcjaPlac akcja{miesiac(), zrodla_, *odpowiedzi, Zakres::Seria};
    const auto krok = [&](qsizetype i) {
        ListaUwag uwagi;
        const bool wykonany = seria.krok(i, akcja, uwagi);
        return WynikKroku{wykonany ? WynikKroku::Los::Wykonany : WynikKroku::Los::Pominiety,
                          tekstyDlaSerii(uwagi)};
    };
    RaportSerii raport;
    zSumami([&] {
        raport = WykonajSerie(o_.sesja.cnPlace, o_.rozmowa,
                              {czynnosc + QLatin1Char(' ') + RokMies{rok_, mies_}.napis(), tytul()},
                              {seria.ile, seria.numer, krok,
                               [this](const Transakcja& t) { zapiszRekordy(t); }, [this] { CofnijWiersz(); },
                               [this](const Transakcja& t) { zapiszSumyMiesiaca(t); }});
    });
    wiersz_.reset();
    return raport;
}

ZbiorPytan ListaPlac::pytaniaDodawania(const QList<qint64>& numery) {
    Sesja& s = o_.sesja;
    ZbiorPytan moga;
    for (const qint64 prcId : numery) {
        if (!s.UstawPracownika(prcId) ||
            naLiscie({prcId, symbolNowegoWiersza(s.rsPRACPR.tekst(schemat::PRACPR("Lista")))}))
            continue;
        if (!moga.ma(Pytanie::IloscZasilkow)) moga.dodaj(Pytanie::IloscZasilkow, MaIlosciZasilkow(s));
        pomijajacUszkodzonych([&] {
            zrodla_.dodajPytaniaDni(miesiac(), prcId, Zakres::Seria, moga);
            zrodla_.dodajPytaniaSkladnikow(miesiac(), prcId, moga);
        });
    }
    return moga;
}

RaportSerii ListaPlac::DodajPracownikow(const QList<qint64>& numery) {
    wymagajOtwartego();
    const auto krok = [&](qsizetype i, const AkcjaPlac& akcja, ListaUwag& uwagi) {
        wymagajPracownika(numery[i]);
        const DanePracownika pracownik = WczytajPracownika(o_.sesja);
        const KluczListy klucz{numery[i], symbolNowegoWiersza(pracownik.Lista)};
        if (naLiscie(klucz)) return false;
        RachunekWiersza r = nowyRachunek(akcja, klucz, pracownik);
        LiczSkladniki(akcja, pracownik, r);
        LiczPlace(akcja, pracownik, kPrzelicz1, r);
        DopiszWiersz(o_.sesja, r.wiersz);
        wpiszZasilek(r);
        uwagi = std::move(r.uwagi);
        return true;
    };
    o_.sesja.wierszListy.zapowiedzNowe(numery.size());
    return wykonajSerie(QStringLiteral("Nowi pracownicy na liście płac"),
                        {numery.size(), [&](qsizetype i) { return numery[i]; },
                         [&] { return pytaniaDodawania(numery); }, krok});
}

void ListaPlac::dodajPytania(Obliczenie obliczenie, const KluczListy& klucz, ZbiorPytan& moga) {
    if (obliczenie == Obliczenie::PoliczenieDni) {
        zrodla_.dodajPytaniaDni(miesiac(), klucz.prcId, Zakres::Seria, moga);
    } else if (obliczenie == Obliczenie::Przepisanie) {
        if (saWpisane(klucz)) moga.dodaj(Pytanie::ZastapicWpisane);
        zrodla_.dodajPytaniaSkladnikow(miesiac(), klucz.prcId, moga);
    } else if (!moga.ma(Pytanie::PomniejszycZasilek)) {
        const std::optional<Waluta> zapisany = zapisanyZasilek(klucz);
        // Without days of the insurer an unrecorded benefit is none.
        const auto wiersz = o_.sesja.rsPLA.szukaj(klucz.prcId, klucz.lista);
        if (!zapisany && !(wiersz && wiersz->liczba(PLA("DNI_L4_ZUS")) > 0)) return;
        szukajWiersza(klucz);
        moga |= PytaniaPlacy({}, ZasilekChorobowy(miesiac(), WczytajWiersz(o_.sesja), zapisany));
    }
}

ZbiorPytan ListaPlac::pytaniaSerii(const QList<Obliczenie>& obliczenia, const QList<KluczListy>& wiersze) {
    ZbiorPytan moga;
    for (const KluczListy& klucz : wiersze)
        for (const Obliczenie obliczenie : obliczenia)
            pomijajacUszkodzonych([&] { dodajPytania(obliczenie, klucz, moga); });
    if (!obliczenia.contains(Obliczenie::Przeliczenie)) moga.dodaj(Pytanie::PomniejszycZasilek, false);
    return moga;
}

bool ListaPlac::przeliczWSerii(const QList<Obliczenie>& obliczenia, const KluczListy& klucz,
                               const AkcjaPlac& akcja, ListaUwag& uwagi) {
    ustawNa(klucz);
    wymagajPracownika(klucz.prcId);
    wymagajWiersza();
    const bool zostawWpisane = !akcja.odpowiedzi.ma(Pytanie::ZastapicWpisane) && saWpisane(klucz);
    const WierszPlac przedtem = WczytajWiersz(o_.sesja);
    RachunekWiersza r{przedtem, zapisanyZasilek(klucz)};
    QList<Obliczenie> wykonane;
    for (const Obliczenie obliczenie : obliczenia) {
        if (obliczenie == Obliczenie::Przepisanie && zostawWpisane) continue;
        wykonajObliczenie(obliczenie, akcja, r);
        wykonane.append(obliczenie);
    }
    if (wykonane.isEmpty()) return false;
    wpiszObliczenia(wykonane, przedtem, r);
    uwagi = std::move(r.uwagi);
    return true;
}

RaportSerii ListaPlac::PrzeliczSerie(const QList<Obliczenie>& obliczenia, const QList<KluczListy>& wiersze) {
    wymagajOtwartego();
    if (obliczenia.contains(Obliczenie::PoliczenieDni) && !o_.stale.AktRejPrzepDni) {
        RachunekWiersza bezDni;
        LiczDni({miesiac(), zrodla_, {}, Zakres::Wiersz}, bezDni); // says that counting is off
        pokazUwagi(bezDni.uwagi);
        return {};
    }
    const auto krok = [&](qsizetype i, const AkcjaPlac& akcja, ListaUwag& uwagi) {
        return przeliczWSerii(obliczenia, wiersze[i], akcja, uwagi);
    };
    return wykonajSerie(nazwaSerii(obliczenia),
                        {wiersze.size(), [&](qsizetype i) { return wiersze[i].prcId; },
                         [&] { return pytaniaSerii(obliczenia, wiersze); }, krok});
}

} // namespace tornel::payroll
