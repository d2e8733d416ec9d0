#include "bank/MultiCash.h"
#include "bank/ZleceniaPrzelewow.h"
#include "cli/Polecenia.h"
#include "cli/Wydruk.h"
#include "common/Daty.h"
#include "common/Rozmowa.h"
#include "reports/przelewy/WydrukPrzelewow.h"
#include "store/Sesja.h"
#include <QFileInfo>
#include <QJsonArray>

namespace tornel::cli {

namespace {

QString opcja(const Wywolanie& w, const char16_t* nazwa) {
    return w.argumenty.wartosc(QString::fromUtf16(nazwa));
}
bool jest(const Wywolanie& w, const char16_t* nazwa) { return w.argumenty.ma(QString::fromUtf16(nazwa)); }

QDate dataOpcji(const Wywolanie& w, const char16_t* nazwa) {
    const auto data = CzytajDate(opcja(w, nazwa));
    if (!data)
        throw ZleUzycie(QStringLiteral("Brak daty dd-mm-rrrr po --%1.").arg(QString::fromUtf16(nazwa)));
    return *data;
}

int kontoOpcji(const Wywolanie& w) {
    if (!jest(w, u"konto")) throw ZleUzycie(QStringLiteral("Brak numeru konta po --konto."));
    return liczbaZTekstu(opcja(w, u"konto"), 0, 32767, QStringLiteral("numer konta"));
}

/// Opens the month that is named, or finds the kind of contract.
ZrodloPrzelewow otworz(Wywolanie& w) {
    const QString& nazwa = w.argumenty.pozycje.first();
    ZrodloPrzelewow z{.umowy = rodzajWyplat(nazwa), .symbol = opcja(w, u"lista")};
    if (z.umowy) return z;
    const RokMies miesiac = miesiacZTekstu(nazwa);
    int wynik = 0;
    w.otoczenie().sesja.OtworzMiesiac(miesiac.rok, miesiac.mies, wynik);
    if (wynik != 0) throw Blad(QStringLiteral("Nie ma listy płac za miesiąc %1.").arg(miesiac.napis()));
    return z;
}

/// What is paid to whom, as it was typed.
ZrodloPrzelewow zrodlo(Wywolanie& w, KomuPrzelew komu) {
    ZrodloPrzelewow z = otworz(w);
    if (komu == KomuPrzelew::Osoby && !z.umowy) {
        z.numery = podaniPracownicy(w);
    } else if (komu == KomuPrzelew::Osoby && jest(w, u"id")) {
        z.umowa = liczbaZTekstu(opcja(w, u"id"), 1, 32767, QStringLiteral("numer umowy"));
    } else if (z.umowy) {
        z.od = dataOpcji(w, u"od");
        z.dokad = dataOpcji(w, u"do");
    }
    return z;
}

QJsonObject json(const Przelew& p) {
    return {{QStringLiteral("nazodb"), p.nazodb},
            {QStringLiteral("nazodbcd"), p.nazodbcd},
            {QStringLiteral("LK"), p.LK},
            {QStringLiteral("nrrachodb1"), p.nrrachodb1},
            {QStringLiteral("nrrachodb2"), p.nrrachodb2},
            {QStringLiteral("nrrachodb3"), p.nrrachodb3},
            {QStringLiteral("Kwota"), TekstKwoty(p.Kwota)},
            {QStringLiteral("NrRachZlec"), p.NrRachZlec},
            {QStringLiteral("nazzlec"), p.nazzlec},
            {QStringLiteral("nazzleccd"), p.nazzleccd},
            {QStringLiteral("Tytulem"), p.Tytulem},
            {QStringLiteral("tytulemcd"), p.tytulemcd}};
}

int wypisz(Wywolanie& w, const QList<Przelew>& przelewy, qsizetype ileWyplat) {
    Przelewy(w.otoczenie()).ZapiszPrzelewy(przelewy);
    if (w.json()) {
        QJsonArray wszystkie;
        for (const Przelew& p : przelewy) wszystkie.append(json(p));
        w.pisz(wszystkie);
    } else {
        QList<QStringList> wiersze{
            {QStringLiteral("ODBIORCA"), QStringLiteral("KWOTA"), QStringLiteral("TYTUŁEM")}};
        for (const Przelew& p : przelewy)
            wiersze.append({p.nazodb + p.nazodbcd, FormatKwoty(p.Kwota), p.Tytulem + p.tytulemcd});
        w.piszTabele(wiersze, {false, true, false});
    }
    return !przelewy.isEmpty() && przelewy.size() == ileWyplat ? status::Wykonane : status::Odmowa;
}

/// The title: as given, else `domyslny`, else asked for once.
QString tytul(Wywolanie& w, const QString& domyslny) {
    if (jest(w, u"tytul")) return opcja(w, u"tytul");
    if (!domyslny.isEmpty()) return domyslny;
    return w.rozmowa.wprowadz(kSzczegolyPlatnosci, kTytulSzczegolow).value_or(QString());
}

/// The transfers as typed; after a message none.
struct Ulozone {
    ZrodloPrzelewow zrodlo;
    QList<Przelew> przelewy;
    qsizetype ileWyplat = 0;
    QString wykonane; ///< which of them were made before
};
std::optional<Ulozone> uloz(Wywolanie& w, KomuPrzelew komu) {
    const ZrodloPrzelewow z = zrodlo(w, komu);
    const int konto = kontoOpcji(w);
    const DoPrzelania co = ZnajdzDoPrzelania(w.otoczenie(), komu, z);
    if (!co.odmowa.isEmpty()) {
        w.rozmowa.komunikat(co.odmowa, Styl::Wykrzyknik);
        return std::nullopt;
    }
    Przelewy przelewy(w.otoczenie());
    const QString szczegoly = tytul(w, co.tytul);
    return Ulozone{z,
                   komu == KomuPrzelew::Osoby ? przelewy.PrzelewPracownika(co.wyplaty, konto, szczegoly)
                                              : przelewy.PrzelewPodatku(co.wyplaty, konto, szczegoly),
                   co.wyplaty.size(), SprawdzWydrukowane(w.otoczenie(), komu, z, co.wyplaty).napis};
}

template <KomuPrzelew komu>
int przelew(Wywolanie& w) {
    const auto ulozone = uloz(w, komu);
    if (!ulozone) {
        if (w.json()) w.pisz(QJsonArray());
        return status::Odmowa;
    }
    return wypisz(w, ulozone->przelewy, ulozone->ileWyplat);
}

UkladPrzelewu ukladOpcji(const Wywolanie& w) {
    if (!jest(w, u"uklad")) return UkladPrzelewu::Przelew;
    QStringList znane;
    for (const OpisUkladuPrzelewu& o : UkladyPrzelewu) {
        if (o.nazwa == opcja(w, u"uklad")) return o.uklad;
        znane.append(o.nazwa.toString());
    }
    throw ZleUzycie(QStringLiteral("Po --uklad stoi jedno z: %1.").arg(znane.join(QStringLiteral(", "))));
}

template <KomuPrzelew komu>
int wydruk(Wywolanie& w) {
    WymagajDrogi(w.argumenty);
    const UkladPrzelewu uklad = ukladOpcji(w);
    const auto ulozone = uloz(w, komu);
    if (!ulozone || ulozone->przelewy.isEmpty()) return status::Odmowa;
    if (!ulozone->wykonane.isEmpty())
        w.rozmowa.komunikat(QStringLiteral("Uwaga: ") + ulozone->wykonane, Styl::Informacja);
    Przelewy(w.otoczenie()).ZapiszPrzelewy(ulozone->przelewy);
    WypiszWydruk(w, *reports::UlozPrzelewy(ulozone->przelewy, uklad));
    // A document and pictures can go to the bank; the others are only looked at.
    for (const char16_t* droga : {u"pdf", u"png"})
        if (jest(w, droga))
            ZapamietajWydrukowane(w.otoczenie(), komu, ulozone->zrodlo, ulozone->przelewy,
                                  QDateTime::currentDateTime(),
                                  QFileInfo(opcja(w, droga)).absoluteFilePath());
    return ulozone->przelewy.size() == ulozone->ileWyplat ? status::Wykonane : status::Odmowa;
}

int multicash(Wywolanie& w) {
    const ZrodloPrzelewow z = otworz(w);
    if (z.umowy && z.umowy->tabela != &schemat::UZL)
        throw ZleUzycie(QStringLiteral("Plik dla banku powstaje z listy płac albo z umów zleceń (UZL)."));
    PrzebiegMCS przebieg{dataOpcji(w, u"wystawienie"),
                         dataOpcji(w, u"platnosc"),
                         liczbaZTekstu(opcja(w, u"paczka"), 0, 32767, QStringLiteral("numer paczki")),
                         opcja(w, u"katalog"),
                         {},
                         opcja(w, u"szczegoly"),
                         QDateTime::currentDateTime()};
    const int konto = kontoOpcji(w);
    for (const KontoNadawcy& k : KontaNadawcy(w.otoczenie()))
        if (k.nr == konto) przebieg.konto = k.konto;
    return MultiCash(w.otoczenie()).utworz(przebieg, z).value_or(0) > 0 ? status::Wykonane : status::Odmowa;
}

} // namespace

QList<Polecenie> poleceniaBanku() {
    static const QList<OpcjaPolecenia> okres{
        {u"konto", u"NR"}, {u"tytul", u"TEKST"}, {u"lista", u"SYMBOL"}, {u"od", u"DATA"}, {u"do", u"DATA"}};
    QList<OpcjaPolecenia> pracownicy = okres;
    pracownicy += QList<OpcjaPolecenia>{{u"pracownik", u"NR"}, {u"id", u"NR"}};
    static const QList<OpcjaPolecenia> uklady{{u"uklad", u"NAZWA"}};
    return {
        {u"przelew pracownicy", u"(RRRR-MM | UZL | UOD | HON) --konto NR",
         u"przelewy dla pracowników z listy płac albo dla osób z umów", 1, kDowolnieWiele, pracownicy,
         przelew<KomuPrzelew::Osoby>},
        {u"przelew podatek", u"(RRRR-MM | UZL | UOD | HON) --konto NR",
         u"przelewy podatku dla urzędów skarbowych", 1, 1, okres, przelew<KomuPrzelew::Urzedy>},
        {u"wydruk przelewy",
         u"(RRRR-MM | UZL | UOD | HON) --konto NR (--pdf PLIK | --png KATALOG | --csv PLIK | --tekst)",
         u"wydruk przelewów dla pracowników z listy płac albo dla osób z umów", 1, kDowolnieWiele,
         opcjeWydruku(pracownicy + uklady), wydruk<KomuPrzelew::Osoby>},
        {u"wydruk przelewy-podatku",
         u"(RRRR-MM | UZL | UOD | HON) --konto NR (--pdf PLIK | --png KATALOG | --csv PLIK | --tekst)",
         u"wydruk przelewów podatku dla urzędów skarbowych", 1, 1, opcjeWydruku(okres + uklady),
         wydruk<KomuPrzelew::Urzedy>},
        {u"multicash",
         u"(RRRR-MM | UZL) --paczka N --wystawienie D --platnosc D --konto NR --szczegoly TEKST --katalog "
         u"KAT",
         u"plik przelewów dla banku",
         1,
         1,
         {{u"paczka", u"N"},
          {u"wystawienie", u"DATA"},
          {u"platnosc", u"DATA"},
          {u"konto", u"NR"},
          {u"szczegoly", u"TEKST"},
          {u"katalog", u"KATALOG"},
          {u"lista", u"SYMBOL"}},
         multicash},
    };
}

} // namespace tornel::cli
