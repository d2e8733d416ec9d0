#include "bank/MultiCash.h"
#include "bank/Przelewy.h"
#include "cli/Polecenia.h"
#include "common/Daty.h"
#include "common/Rozmowa.h"
#include "store/Sesja.h"
#include <QJsonArray>

namespace tornel::cli {

namespace {

/// What is paid: a month's list or contracts of one kind.
struct Zrodlo {
    const RodzajWyplat* umowy = nullptr;
    QString symbol;
};

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
Zrodlo otworz(Wywolanie& w) {
    const QString& nazwa = w.argumenty.pozycje.first();
    Zrodlo z{rodzajWyplat(nazwa), opcja(w, u"lista")};
    if (z.umowy) return z;
    const RokMies miesiac = miesiacZTekstu(nazwa);
    int wynik = 0;
    w.otoczenie().sesja.OtworzMiesiac(miesiac.rok, miesiac.mies, wynik);
    if (wynik != 0) throw Blad(QStringLiteral("Nie ma listy płac za miesiąc %1.").arg(miesiac.napis()));
    return z;
}

int odmowa(Wywolanie& w, const QString& komunikat) {
    w.rozmowa.komunikat(komunikat, Styl::Wykrzyknik);
    if (w.json()) w.pisz(QJsonArray());
    return status::Odmowa;
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

const QString kBrakKwoty =
    QStringLiteral("Nie można wydrukować przelewu, ponieważ nie ustalono kwoty do przelewu.");

/// The title: as given, else `domyslny`, else asked for once.
QString tytul(Wywolanie& w, QStringView domyslny) {
    if (jest(w, u"tytul")) return opcja(w, u"tytul");
    if (!domyslny.isEmpty()) return domyslny.toString();
    return w.rozmowa.wprowadz(QStringLiteral("Szczegóły płatności:"), QStringLiteral("Przelew"))
        .value_or(QString());
}

int przelewPracownicy(Wywolanie& w) {
    const Zrodlo z = otworz(w);
    const int konto = kontoOpcji(w);
    const Wyplaty wyplaty(w.otoczenie());
    QList<Wyplata> lista;
    QStringView domyslny;
    if (!z.umowy) {
        lista = wyplaty.zListy(z.symbol, podaniPracownicy(w));
        if (lista.isEmpty()) return odmowa(w, kBrakKwoty);
    } else if (jest(w, u"id")) {
        const int id = liczbaZTekstu(opcja(w, u"id"), 1, 32767, QStringLiteral("numer umowy"));
        if (const auto jedna = wyplaty.zUmowy(*z.umowy, id)) lista.append(*jedna);
        if (lista.isEmpty()) return odmowa(w, kBrakKwoty);
        domyslny = z.umowy->tytulJednego;
    } else {
        lista = wyplaty.zUmow(*z.umowy, dataOpcji(w, u"od"), dataOpcji(w, u"do"));
        if (lista.isEmpty()) return odmowa(w, z.umowy->brakUmow.toString());
        domyslny = z.umowy->tytulSerii;
    }
    return wypisz(w, Przelewy(w.otoczenie()).PrzelewPracownika(lista, konto, tytul(w, domyslny)),
                  lista.size());
}

int przelewPodatek(Wywolanie& w) {
    const Zrodlo z = otworz(w);
    const int konto = kontoOpcji(w);
    const Wyplaty wyplaty(w.otoczenie());
    QList<Wyplata> lista;
    if (z.umowy) {
        const auto podatek = wyplaty.podatekUmow(*z.umowy, dataOpcji(w, u"od"), dataOpcji(w, u"do"));
        if (!podatek) return odmowa(w, z.umowy->brakUmow.toString());
        if (podatek->isEmpty()) return odmowa(w, z.umowy->brakPodatku.toString());
        lista = *podatek;
    } else {
        lista = wyplaty.podatekListy(z.symbol);
        if (lista.isEmpty()) return odmowa(w, QStringLiteral("Brak kwoty z podatku."));
    }
    const QString domyslny = tytulPodatku();
    return wypisz(w, Przelewy(w.otoczenie()).PrzelewPodatku(lista, konto, tytul(w, domyslny)), lista.size());
}

int multicash(Wywolanie& w) {
    const Zrodlo z = otworz(w);
    if (z.umowy && z.umowy->tabela != &schemat::UZL)
        throw ZleUzycie(QStringLiteral("Plik dla banku powstaje z listy płac albo z umów zleceń (UZL)."));
    PrzebiegMCS przebieg{dataOpcji(w, u"wystawienie"),
                         dataOpcji(w, u"platnosc"),
                         liczbaZTekstu(opcja(w, u"paczka"), 0, 32767, QStringLiteral("numer paczki")),
                         opcja(w, u"katalog"),
                         {},
                         opcja(w, u"szczegoly")};
    const int konto = kontoOpcji(w);
    for (const KontoNadawcy& k : KontaNadawcy(w.otoczenie()))
        if (k.nr == konto) przebieg.konto = k.konto;
    MultiCash mc(w.otoczenie());
    const auto ile = z.umowy ? mc.zUmow(przebieg) : mc.zListy(przebieg, z.symbol);
    return ile.value_or(0) > 0 ? status::Wykonane : status::Odmowa;
}

} // namespace

QList<Polecenie> poleceniaBanku() {
    static const QList<OpcjaPolecenia> okres{
        {u"konto", u"NR"}, {u"tytul", u"TEKST"}, {u"lista", u"SYMBOL"}, {u"od", u"DATA"}, {u"do", u"DATA"}};
    QList<OpcjaPolecenia> pracownicy = okres;
    pracownicy += QList<OpcjaPolecenia>{{u"pracownik", u"NR"}, {u"id", u"NR"}};
    return {
        {u"przelew pracownicy", u"(RRRR-MM | UZL | UOD | HON) --konto NR",
         u"przelewy dla pracowników z listy płac albo dla osób z umów", 1, kDowolnieWiele, pracownicy,
         przelewPracownicy},
        {u"przelew podatek", u"(RRRR-MM | UZL | UOD | HON) --konto NR",
         u"przelewy podatku dla urzędów skarbowych", 1, 1, okres, przelewPodatek},
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
