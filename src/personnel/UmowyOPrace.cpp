#include "personnel/UmowyOPrace.h"
#include "common/Blad.h"
#include "common/Daty.h"
#include "common/Liczby.h"
#include "common/Rozmowa.h"
#include "personnel/Wypowiedzenie.h"
#include "store/Sesja.h"
#include <algorithm>
#include <QCollator>
#include <QLocale>
#include <tuple>

namespace tornel::personnel {

using schemat::M_PRACY;
using schemat::PRACDP;
using schemat::PRACPR;
using schemat::UMOP;

namespace {

/// Months of a trial at most, and those that a fixed term must last longer than to be ended by notice.
constexpr int kNajdluzszyProbny = 3, kPolRokuUmowy = 6;

bool wczesniejsza(const UmowaOPrace& a, const UmowaOPrace& b) {
    return std::tuple(a.warunki.od, a.id) < std::tuple(b.warunki.od, b.id);
}

/// A contract and its changes by their first days: all but the last have been replaced, and all end when the
/// contract was ended.
void oznaczZastapione(QList<UmowaOPrace>& umowy) {
    QHash<qint64, QDate> rozwiazane;
    for (const UmowaOPrace& u : umowy)
        if (u.zmienia == 0) rozwiazane.insert(u.id, u.rozwiazana);
    for (UmowaOPrace& u : umowy)
        if (u.zmienia > 0) u.rozwiazana = rozwiazane.value(u.zmienia);
    QHash<qint64, UmowaOPrace*> ostatnie; // of each contract
    for (UmowaOPrace& u : umowy) {
        UmowaOPrace*& dotad = ostatnie[u.zmienia > 0 ? u.zmienia : u.id];
        if (dotad && wczesniejsza(u, *dotad)) {
            u.zastapiona = true;
            continue;
        }
        if (dotad) dotad->zastapiona = true;
        dotad = &u;
    }
}

/// Whether notice ends it.
bool wypowiadana(const UmowaOPrace& u) {
    return u.sposob == SposobRozwiazania::WypowiedzenieFirmy ||
           u.sposob == SposobRozwiazania::WypowiedzeniePracownika;
}

QString dzienAlboBrak(QDate dzien) { return dzien.isValid() ? FormatDaty(dzien) : QStringLiteral("(brak)"); }
QString tekstAlboBrak(const QString& tekst) { return tekst.isEmpty() ? QStringLiteral("(brak)") : tekst; }

} // namespace

bool FiltrUmowOPrace::pasuje(const UmowaOPrace& umowa) const {
    if (prcId && umowa.prcId != *prcId) return false;
    if (rodzaj && umowa.rodzaj != *rodzaj) return false;
    if (!konczaceDo.isValid()) return true;
    const QDate koniec = umowa.koniec();
    return !umowa.zastapiona && koniec.isValid() && koniec >= konczaceOd && koniec <= konczaceDo;
}

UmowyOPrace::UmowyOPrace(Otoczenie& otoczenie) : o_(otoczenie) {
    tabela().Open(o_.sesja.cnPlace);
    if (!o_.sesja.rsM_PRACY.otwarty()) o_.sesja.rsM_PRACY.Open(o_.sesja.cnPlace);
}

Recordset& UmowyOPrace::tabela() const { return o_.sesja.rsUMOP; }

// --- reading
// -----------------------------------------------------------------------------------------------------

QList<UmowaOPrace> UmowyOPrace::Wczytaj() const {
    const QCollator polski(QLocale(QLocale::Polish, QLocale::Poland));
    struct ZKluczem {
        QCollatorSortKey nazwisko;
        UmowaOPrace umowa;
    };
    std::vector<ZKluczem> wiersze;
    QList<UmowaOPrace> wynik;
    for (const Wiersz w : tabela().wiersze()) wynik.append(UmowaZWiersza(w));
    oznaczZastapione(wynik);
    wiersze.reserve(static_cast<std::size_t>(wynik.size()));
    for (const UmowaOPrace& u : wynik) wiersze.push_back({polski.sortKey(u.osoba()), u});
    std::ranges::sort(wiersze, [](const ZKluczem& a, const ZKluczem& b) {
        const int nazwiska = a.nazwisko.compare(b.nazwisko);
        return nazwiska != 0 ? nazwiska < 0 : wczesniejsza(a.umowa, b.umowa);
    });
    wynik.clear();
    for (ZKluczem& w : wiersze) wynik.append(std::move(w.umowa));
    return wynik;
}

std::optional<UmowaOPrace> UmowyOPrace::umowa(qint64 id) const {
    const auto wiersz = tabela().szukaj(id);
    return wiersz ? std::optional(UmowaZWiersza(*wiersz)) : std::nullopt;
}

QList<UmowaOPrace> UmowyOPrace::pracownika(qint64 prcId) const {
    QList<UmowaOPrace> wynik;
    for (const Wiersz w : tabela().wiersze())
        if (w.liczba(UMOP("prc_id")) == prcId) wynik.append(UmowaZWiersza(w));
    oznaczZastapione(wynik);
    std::ranges::sort(wynik, wczesniejsza);
    return wynik;
}

UmowaOPrace UmowyOPrace::glowna(const UmowaOPrace& umowa) const {
    return umowa.zmienia > 0 ? this->umowa(umowa.zmienia).value_or(umowa) : umowa;
}

std::optional<UmowaOPrace> UmowyOPrace::ostatnia(qint64 prcId) const {
    const QList<UmowaOPrace> umowy = pracownika(prcId);
    return umowy.isEmpty() ? std::nullopt : std::optional(umowy.last());
}

QDate UmowyOPrace::zatrudnionyOd(const UmowaOPrace& umowa) const {
    const auto pr = o_.sesja.rsPRACPR.szukaj(umowa.prcId);
    const QDate zKartoteki = pr ? pr->data(PRACPR("data_zatr")) : QDate();
    if (zKartoteki.isValid() && zKartoteki <= umowa.warunki.od) return zKartoteki;
    return glowna(umowa).warunki.od;
}

QString UmowyOPrace::nazwaMiejsca(qint64 miejsce) const {
    const auto m = o_.sesja.rsM_PRACY.szukaj(miejsce);
    return m ? m->tekst(M_PRACY("Nazwa")).trimmed() : QString();
}

// --- new contracts
// -----------------------------------------------------------------------------------------------

QDate UmowyOPrace::proponowanyDzien(qint64 prcId, QDate dzis) const {
    if (const auto poprzednia = ostatnia(prcId))
        return poprzednia->koniec().isValid() ? poprzednia->koniec().addDays(1) : dzis;
    const auto pr = o_.sesja.rsPRACPR.szukaj(prcId);
    const QDate zKartoteki = pr ? pr->data(PRACPR("umowa_od")) : QDate();
    return zKartoteki.isValid() ? zKartoteki : dzis;
}

qint64 UmowyOPrace::wolnyNumer() const {
    QList<qint64> zajete;
    for (const Wiersz w : tabela().wiersze()) zajete.append(w.liczba(UMOP("UMOPID")));
    std::ranges::sort(zajete);
    qint64 wolny = 1;
    for (const qint64 id : zajete) wolny += id == wolny ? 1 : 0;
    return wolny;
}

void UmowyOPrace::zapisz(QStringView czynnosc) {
    try {
        tabela().UpdateBatch(czynnosc);
    } catch (...) {
        tabela().CancelBatch();
        throw;
    }
}

qint64 UmowyOPrace::Nowa(qint64 prcId, QDate dzien) {
    const auto dp = o_.sesja.rsPRACDP.szukaj(prcId);
    const auto pr = o_.sesja.rsPRACPR.szukaj(prcId);
    if (!dp || !pr) throw Blad(QStringLiteral("Nie ma pracownika o numerze %1.").arg(prcId));
    if (!dzien.isValid()) throw Blad(QStringLiteral("Nie podano daty zawarcia umowy."));
    WarunkiPracy warunki = WarunkiKartoteki(*pr);
    if (ostatnia(prcId) || !warunki.od.isValid()) {
        warunki.od = dzien;
        warunki.dokad = {};
    }
    const qint64 id = wolnyNumer();
    Recordset& rs = tabela();
    rs.AddNewZero(id);
    rs.ustaw(UMOP("prc_id"), prcId);
    rs.ustaw(UMOP("Naz"), dp->tekst(PRACDP("Naz")));
    rs.ustaw(UMOP("Imie"), dp->tekst(PRACDP("Imie_1")));
    rs.ustaw(UMOP("rodzaj"),
             static_cast<qint64>(warunki.dokad.isValid() ? RodzajUmowyOPrace::CzasOkreslony
                                                         : RodzajUmowyOPrace::CzasNieokreslony));
    rs.ustaw(UMOP("data_zaw"), dzien);
    rs.ustaw(UMOP("wyp_2tyg"), QStringLiteral("N"));
    WpiszWarunkiUmowy(rs, warunki);
    zapisz(u"Nowa umowa o pracę");
    return id;
}

qint64 UmowyOPrace::Zmiana(qint64 wybranaId, QDate od) {
    const auto wybrana = umowa(wybranaId);
    if (!wybrana) throw Blad(QStringLiteral("Nie ma umowy o numerze %1.").arg(wybranaId));
    const UmowaOPrace kontrakt = glowna(*wybrana);
    if (!od.isValid() || od <= kontrakt.warunki.od)
        throw Blad(QStringLiteral("Warunki umowy mogą się zmienić dopiero po dniu %1, od którego trwa.")
                       .arg(FormatDaty(kontrakt.warunki.od)));
    UmowaOPrace dotad = kontrakt;
    for (const UmowaOPrace& u : pracownika(kontrakt.prcId))
        if (u.zmienia == kontrakt.id && u.warunki.od < od) dotad = u;
    const qint64 id = wolnyNumer();
    Recordset& rs = tabela();
    rs.AddNewZero(id);
    rs.ustaw(UMOP("prc_id"), kontrakt.prcId);
    rs.ustaw(UMOP("Naz"), kontrakt.nazwisko);
    rs.ustaw(UMOP("Imie"), kontrakt.imie);
    rs.ustaw(UMOP("rodzaj"), kontrakt.rodzaj);
    rs.ustaw(UMOP("data_zaw"), od);
    rs.ustaw(UMOP("zmienia"), kontrakt.id);
    rs.ustaw(UMOP("wyp_2tyg"), QString(kontrakt.wypowiadalna ? u'T' : u'N'));
    rs.ustaw(UMOP("inne_war"), dotad.inneWarunki);
    WarunkiPracy warunki = dotad.warunki;
    warunki.od = od;
    WpiszWarunkiUmowy(rs, warunki);
    zapisz(u"Zmiana warunków umowy o pracę");
    return id;
}

// --- storing
// -----------------------------------------------------------------------------------------------------

bool UmowyOPrace::Ustaw(qint64 id) { return tabela().Znajdz(id); }

QString UmowyOPrace::odmowa() const {
    const UmowaOPrace u = UmowaZWiersza(tabela().biezacyWiersz());
    if (u.rodzaj < 0 || u.rodzaj >= std::ssize(RodzajeUmowOPrace()))
        return QStringLiteral("Nie ma rodzaju umowy o pracę o numerze %1.").arg(u.rodzaj);
    const qint64 sposob = tabela().liczba(UMOP("sposob"));
    if (sposob < 0 || sposob >= std::ssize(SposobyRozwiazania()))
        return QStringLiteral("Nie ma sposobu rozwiązania umowy o numerze %1.").arg(sposob);
    if (!u.warunki.od.isValid())
        return QStringLiteral("Umowa nie ma dnia, od którego trwa. Wpisz go w polu „Od dnia”.");
    if (u.warunki.dokad.isValid() && u.warunki.dokad < u.warunki.od)
        return QStringLiteral("Umowa kończy się %1, przed dniem %2, od którego trwa.")
            .arg(FormatDaty(u.warunki.dokad), FormatDaty(u.warunki.od));
    if (u.zmienia > 0 && (u.sposob != SposobRozwiazania::Trwa || u.rozwiazana.isValid()))
        return QStringLiteral("Rozwiązanie wpisuje się w umowie, nie w zmianie jej warunków.");
    if (u.rozwiazana.isValid() && u.rozwiazana < u.warunki.od)
        return QStringLiteral("Umowa jest rozwiązana %1, przed dniem %2, od którego trwa.")
            .arg(FormatDaty(u.rozwiazana), FormatDaty(u.warunki.od));
    if (u.rozwiazana.isValid() && u.wypowiedziana.isValid() && u.wypowiedziana > u.rozwiazana)
        return QStringLiteral("Wypowiedzenie z %1 jest późniejsze niż rozwiązanie umowy %2.")
            .arg(FormatDaty(u.wypowiedziana), FormatDaty(u.rozwiazana));
    return {};
}

void UmowyOPrace::Wpisz() {
    if (!tabela().naWierszu()) throw Blad(QStringLiteral("Nie wybrano umowy."));
    if (const QString powod = odmowa(); !powod.isEmpty()) throw Blad(powod);
    tabela().UpdateBatch(u"Umowa o pracę");
}

void UmowyOPrace::Porzuc() { tabela().CancelBatch(); }

bool UmowyOPrace::Usun(qint64 id) {
    const auto usuwana = umowa(id);
    if (!usuwana) throw Blad(QStringLiteral("Nie ma umowy o numerze %1.").arg(id));
    const QList<UmowaOPrace> wszystkie = pracownika(usuwana->prcId);
    if (std::ranges::any_of(wszystkie, [&](const UmowaOPrace& u) { return u.zmienia == id; })) {
        o_.rozmowa.komunikat(
            QStringLiteral("Nie można usunąć umowy, której warunki były zmieniane. Najpierw usuń zmiany."),
            Styl::Wykrzyknik);
        return false;
    }
    if (!o_.rozmowa.pytanieUsuwajace(QStringLiteral("Czy na pewno usunąć zaznaczoną umowę o pracę ?")))
        return false;
    (void)Ustaw(id);
    tabela().Delete();
    zapisz(u"Usunięcie umowy o pracę");
    return true;
}

// --- terms compared
// ----------------------------------------------------------------------------------------------

QList<std::pair<QString, QString>> UmowyOPrace::opis(const WarunkiPracy& w) const {
    return {{QStringLiteral("umowa od"), dzienAlboBrak(w.od)},
            {QStringLiteral("umowa do"), dzienAlboBrak(w.dokad)},
            {QStringLiteral("stanowisko"), tekstAlboBrak(w.stanowisko)},
            {QStringLiteral("dział"), tekstAlboBrak(w.dzial)},
            {QStringLiteral("miejsce pracy"), tekstAlboBrak(nazwaMiejsca(w.miejsce))},
            {QStringLiteral("wymiar czasu pracy"), tekstAlboBrak(NapisEtatu(w.etat, w.etat2))},
            {QStringLiteral("płaca zasadnicza"), FormatKwoty(w.placa) + QStringLiteral(" zł")},
            {QStringLiteral("stawka godzinowa"), FormatKwoty(w.stawka) + QStringLiteral(" zł")},
            {QStringLiteral("premia"), FormatKwoty(w.premia) + QStringLiteral("%")}};
}

QList<RoznicaWarunku> UmowyOPrace::roznice(const WarunkiPracy& dotad, const WarunkiPracy& teraz) const {
    const auto a = opis(dotad), b = opis(teraz);
    QList<RoznicaWarunku> wynik;
    for (qsizetype i = 0; i < a.size(); ++i)
        if (a[i].second != b[i].second) wynik.append({a[i].first, a[i].second, b[i].second});
    return wynik;
}

// A change of terms is no new contract: the file goes on naming the day of the contract itself. A contract
// that was ended lasts until that day, whatever was agreed on before.
WarunkiPracy UmowyOPrace::warunkiDlaKartoteki(const UmowaOPrace& umowa) const {
    const UmowaOPrace kontrakt = glowna(umowa);
    WarunkiPracy warunki = umowa.warunki;
    warunki.od = kontrakt.warunki.od;
    if (kontrakt.rozwiazana.isValid()) warunki.dokad = kontrakt.rozwiazana;
    return warunki;
}

QList<RoznicaWarunku> UmowyOPrace::roznicaOdKartoteki(const UmowaOPrace& umowa) const {
    const auto pr = o_.sesja.rsPRACPR.szukaj(umowa.prcId);
    return pr ? roznice(WarunkiKartoteki(*pr), warunkiDlaKartoteki(umowa)) : QList<RoznicaWarunku>();
}

QList<RoznicaWarunku> UmowyOPrace::roznicaOdPoprzednich(const UmowaOPrace& umowa) const {
    if (umowa.zmienia <= 0) return {};
    UmowaOPrace dotad = glowna(umowa);
    for (const UmowaOPrace& u : pracownika(umowa.prcId))
        if (u.zmienia == umowa.zmienia && wczesniejsza(u, umowa)) dotad = u;
    WarunkiPracy poprzednie = dotad.warunki;
    poprzednie.od = umowa.warunki.od;
    return roznice(poprzednie, umowa.warunki);
}

bool UmowyOPrace::PrzepiszDoKartoteki(qint64 id) {
    const auto przepisywana = umowa(id);
    if (!przepisywana) throw Blad(QStringLiteral("Nie ma umowy o numerze %1.").arg(id));
    Recordset& pr = o_.sesja.rsPRACPR;
    if (!pr.szukaj(przepisywana->prcId))
        throw Blad(QStringLiteral("Nie ma pracownika o numerze %1.").arg(przepisywana->prcId));
    const QList<RoznicaWarunku> zmiany = roznicaOdKartoteki(*przepisywana);
    if (zmiany.isEmpty()) return false;
    QString pytanie = QStringLiteral("Czy wpisać do kartoteki pracownika %1 warunki tej umowy ?\n")
                          .arg(przepisywana->osoba());
    for (const RoznicaWarunku& z : zmiany)
        pytanie += QStringLiteral("\n%1: %2, w kartotece %3").arg(z.nazwa, z.teraz, z.dotad);
    if (!o_.rozmowa.pytanie(pytanie)) return false;
    if (!pr.Znajdz(przepisywana->prcId)) return false;
    WpiszWarunkiKartoteki(pr, warunkiDlaKartoteki(*przepisywana));
    try {
        pr.UpdateBatch(u"Warunki umowy o pracę w kartotece");
    } catch (...) {
        pr.CancelBatch();
        throw;
    }
    return true;
}

// --- what the law says
// -------------------------------------------------------------------------------------------

/// Two fixed terms one after the other, each begun within a month of the end before, make the third one a
/// contract without an end.
bool UmowyOPrace::trzeciaZRzedu(const UmowaOPrace& umowa) const {
    const auto okreslona = [](const UmowaOPrace& u) {
        return u.zmienia == 0 && u.jestRodzaju(RodzajUmowyOPrace::CzasOkreslony);
    };
    if (!okreslona(umowa)) return false;
    QDate poczatek = umowa.warunki.od;
    int poprzednich = 0;
    QList<UmowaOPrace> wczesniejsze = pracownika(umowa.prcId);
    std::ranges::reverse(wczesniejsze);
    for (const UmowaOPrace& u : wczesniejsze) {
        if (u.zmienia != 0 || !wczesniejsza(u, umowa)) continue;
        if (!okreslona(u) || !u.koniec().isValid() || poczatek > u.koniec().addMonths(1).addDays(1)) break;
        poczatek = u.warunki.od;
        ++poprzednich;
    }
    return poprzednich >= 2;
}

QStringList UmowyOPrace::uwagi(const UmowaOPrace& u) const {
    using enum RodzajUmowyOPrace;
    QStringList wynik;
    const bool maKoniec = u.warunki.dokad.isValid();
    if (u.jestRodzaju(CzasNieokreslony) && maKoniec)
        wynik += QStringLiteral("Umowa na czas nieokreślony nie ma dnia, do którego trwa.");
    if ((u.jestRodzaju(CzasOkreslony) || u.jestRodzaju(OkresProbny)) && !maKoniec)
        wynik +=
            QStringLiteral("Umowa %1 potrzebuje dnia, do którego trwa.").arg(NazwaRodzajuUmowy(u.rodzaj));
    if (u.jestRodzaju(OkresProbny) && maKoniec && DluzszaNiz(u.warunki, kNajdluzszyProbny))
        wynik += QStringLiteral("Okres próbny nie może przekraczać 3 miesięcy (art. 25 § 2 Kodeksu pracy).");
    if (u.wypowiadalna && (!u.jestRodzaju(CzasOkreslony) || !DluzszaNiz(u.warunki, kPolRokuUmowy)))
        wynik +=
            QStringLiteral("Dwutygodniowe wypowiedzenie można przewidzieć tylko w umowie na czas określony "
                           "dłuższy niż 6 miesięcy (art. 33 Kodeksu pracy).");
    if (trzeciaZRzedu(u))
        wynik += QStringLiteral("To trzecia z rzędu umowa na czas określony: działa jak zawarta na czas "
                                "nieokreślony (art. 25¹ Kodeksu pracy).");
    if (wypowiadana(u) && u.wypowiedziana.isValid())
        wynik += odmowaWypowiedzenia(u, u.wypowiedziana);
    else if (wypowiadana(u))
        wynik += QStringLiteral("Brak daty wypowiedzenia.");
    if (u.sposob != SposobRozwiazania::Trwa && !u.rozwiazana.isValid())
        wynik += QStringLiteral("Brak ostatniego dnia zatrudnienia.");
    wynik.removeAll(QString());
    return wynik;
}

QDate UmowyOPrace::koniecZatrudnienia(const UmowaOPrace& umowa) const {
    const UmowaOPrace kontrakt = glowna(umowa);
    QDate koniec = kontrakt.koniec();
    for (const UmowaOPrace& u : pracownika(kontrakt.prcId))
        if (u.zmienia == kontrakt.id && !u.zastapiona) koniec = u.koniec();
    return koniec;
}

QString UmowyOPrace::odmowaWypowiedzenia(const UmowaOPrace& umowa, QDate dzien) const {
    const UmowaOPrace kontrakt = glowna(umowa);
    if (OkresDlaUmowy(kontrakt, zatrudnionyOd(kontrakt), dzien)) return {};
    return QStringLiteral("Umowy %1 nie można rozwiązać za wypowiedzeniem%2.")
        .arg(NazwaRodzajuUmowy(kontrakt.rodzaj),
             kontrakt.jestRodzaju(RodzajUmowyOPrace::CzasOkreslony)
                 ? QStringLiteral(", jeżeli tego nie przewidziano (art. 33 Kodeksu pracy)")
                 : QString());
}

QString UmowyOPrace::odmowaPisma(const UmowaOPrace& umowa, PismoOPrace pismo) const {
    const UmowaOPrace kontrakt = glowna(umowa);
    switch (pismo) {
    case PismoOPrace::Umowa:
        break;
    case PismoOPrace::Zmiana:
        if (umowa.zmienia <= 0)
            return QStringLiteral("To jest umowa, a nie zmiana jej warunków. Zmianę zakłada przycisk „Zmiana "
                                  "warunków”.");
        if (roznicaOdPoprzednich(umowa).isEmpty() && umowa.inneWarunki == kontrakt.inneWarunki)
            return QStringLiteral("Ta zmiana niczego nie zmienia. Wpisz w niej nowe warunki.");
        return umowa.wypowiedziana.isValid() ? odmowaWypowiedzenia(umowa, umowa.wypowiedziana) : QString();
    case PismoOPrace::Wypowiedzenie:
        if (!wypowiadana(kontrakt) || !kontrakt.wypowiedziana.isValid())
            return QStringLiteral("Umowa nie jest wypowiedziana. Sposób i datę wypowiedzenia wpisuje się na "
                                  "zakładce „Rozwiązanie”.");
        return odmowaWypowiedzenia(kontrakt, kontrakt.wypowiedziana);
    case PismoOPrace::Swiadectwo:
        if (!koniecZatrudnienia(umowa).isValid())
            return QStringLiteral("Umowa nie ma ostatniego dnia zatrudnienia, więc nie ma jeszcze świadectwa "
                                  "pracy. Wpisz go na zakładce „Rozwiązanie”.");
        break;
    }
    return {};
}

} // namespace tornel::personnel
