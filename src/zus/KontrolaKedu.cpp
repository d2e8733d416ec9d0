#include "zus/KontrolaKedu.h"
#include "common/PolaKedu.h"
#include "rules/Stale.h"
#include "store/Zapytanie.h"
#include "zus/BlokiKedu.h"
#include <algorithm>
#include <set>

namespace tornel::zus {

using schemat::KONTA;
using schemat::M_PRACY;
using schemat::PLA;
using schemat::PRACDP;
using schemat::PRACPR;
using schemat::PRACZUS;
using schemat::RODZINA;
using schemat::UZL;

namespace {

/// The records of one employee.
struct Kartoteka {
    qint64 prcId = 0;
    std::optional<Wiersz> dp, pr, zus;
    bool komplet = false;

    Kartoteka(const Sesja& s, qint64 numer)
        : prcId(numer), dp(s.rsPRACDP.szukaj(numer)), pr(s.rsPRACPR.szukaj(numer)),
          zus(s.rsPRACZUS.szukaj(numer)),
          komplet(dp && pr && zus && s.rsPRACSK.szukaj(numer) && s.rsPRACINF.szukaj(numer)) {}

    [[nodiscard]] QString nazwisko() const {
        return dp ? dp->tekst(PRACDP("Naz")) + QLatin1Char(' ') + dp->tekst(PRACDP("Imie_1")) : QString();
    }
};

bool pusty(const Wiersz& w, Kolumna k) { return w.tekst(k).trimmed().isEmpty(); }

/// Whether a text holds a letter that the file has no byte for.
bool nieDoZapisu(const QString& tekst) {
    return windows1250(tekst).count('?') != tekst.count(QLatin1Char('?'));
}

/// Two ends of a period as they should be: both or none, and in order.
QString uwagaOOkresie(const Wiersz& w, Kolumna od, Kolumna dokad, QStringView czego) {
    const QDate pierwszy = w.data(od), ostatni = w.data(dokad);
    if (pierwszy.isValid() != ostatni.isValid())
        return QStringLiteral("%1: jest tylko jedna z dat, więc plik nie będzie miał żadnej").arg(czego);
    if (pierwszy.isValid() && pierwszy > ostatni)
        return QStringLiteral("%1: data końca jest przed datą początku").arg(czego);
    return {};
}

using Sprawdzenie = QStringList (*)(const Kartoteka&);

QStringList tozsamosc(const Kartoteka& k) {
    QStringList u;
    if (pusty(*k.dp, PRACDP("pesel")) && pusty(*k.dp, PRACDP("Nip")) && pusty(*k.dp, PRACDP("dowod_ser")) &&
        pusty(*k.dp, PRACDP("dowod_nr")))
        u += QStringLiteral("nie ma numeru PESEL, NIP ani dowodu osobistego");
    if (nieDoZapisu(k.nazwisko()))
        u += QStringLiteral("nazwisko lub imię ma literę, której plik nie zapisze; będzie „?”");
    return u;
}

QStringList urodzenie(const Kartoteka& k) {
    return k.dp->data(PRACDP("data_ur")).isValid() ? QStringList()
                                                   : QStringList{QStringLiteral("nie ma daty urodzenia")};
}

QStringList tytul(const Kartoteka& k) {
    return pusty(*k.zus, PRACZUS("kod_tyt_ub"))
               ? QStringList{QStringLiteral("kod tytułu ubezpieczenia jest pusty")}
               : QStringList();
}

QStringList okresy(const Kartoteka& k) {
    QStringList u{
        uwagaOOkresie(*k.zus, PRACZUS("niespr_od"), PRACZUS("niespr_do"), u"niepełnosprawność"),
        uwagaOOkresie(*k.zus, PRACZUS("niezdpr_od"), PRACZUS("niezdpr_do"), u"niezdolność do pracy")};
    const QDate urodzony = k.dp->data(PRACDP("data_ur"));
    for (const Kolumna poczatek : {PRACZUS("pocz_ub_sp"), PRACZUS("pocz_ub_zd")})
        if (urodzony.isValid() && k.zus->data(poczatek).isValid() && k.zus->data(poczatek) < urodzony)
            u += QStringLiteral("ubezpieczenie zaczyna się przed urodzeniem");
    return u;
}

QStringList rodzajZZA(const Kartoteka& k) {
    const qint64 rodzaj = k.zus->liczba(PRACZUS("oi_zua"));
    return rodzaj >= 1 && rodzaj <= 3
               ? QStringList()
               : QStringList{
                     QStringLiteral("dokument bierze rodzaj ze znaku ZUS ZUA, a ten jest poza 1 - 3")};
}

QStringList poprzedniaTozsamosc(const Kartoteka& k) {
    const bool jakas = !pusty(*k.dp, PRACDP("snaz")) || !pusty(*k.dp, PRACDP("spesel")) ||
                       !pusty(*k.dp, PRACDP("snip")) || !pusty(*k.dp, PRACDP("simie_1")) ||
                       !pusty(*k.dp, PRACDP("sdowod_nr")) || k.dp->data(PRACDP("sdata_ur")).isValid();
    return jakas ? QStringList()
                 : QStringList{QStringLiteral("nie ma poprzednich danych, które dokument zmienia")};
}

QStringList ustanie(const Kartoteka& k) {
    static constexpr struct {
        Kolumna flaga, data, kod;
    } kFundusze[] = {
        {PRACZUS("zwua_e"), PRACZUS("zwua_d_e"), PRACZUS("zwua_k_e")},
        {PRACZUS("zwua_r"), PRACZUS("zwua_d_r"), PRACZUS("zwua_k_r")},
        {PRACZUS("zwua_c"), PRACZUS("zwua_d_c"), PRACZUS("zwua_k_c")},
        {PRACZUS("zwua_w"), PRACZUS("zwua_d_w"), PRACZUS("zwua_k_w")},
        {PRACZUS("zwua_z"), PRACZUS("zwua_d_z"), PRACZUS("zwua_k_z")},
    };
    bool zaznaczony = false, niepelny = false, przedPoczatkiem = false;
    for (const auto& f : kFundusze) {
        if (!k.zus->flaga(f.flaga)) continue;
        zaznaczony = true;
        niepelny = niepelny || !k.zus->data(f.data).isValid() || pusty(*k.zus, f.kod);
        przedPoczatkiem = przedPoczatkiem || (k.zus->data(f.data).isValid() &&
                                              k.zus->data(f.data) < k.zus->data(PRACZUS("pocz_ub_sp")));
    }
    QStringList u;
    if (!zaznaczony && k.zus->liczba(PRACZUS("zus_zwua")) <= 2)
        u += QStringLiteral("nie zaznaczono żadnego ubezpieczenia, które ustało");
    if (niepelny) u += QStringLiteral("przy ubezpieczeniu, które ustało, brak daty lub kodu przyczyny");
    if (przedPoczatkiem) u += QStringLiteral("ubezpieczenie ustało przed swoim początkiem");
    return u;
}

struct SprawdzeniaDokumentu {
    KodKedu kod;
    std::array<Sprawdzenie, 5> sprawdzenia;
};
constexpr SprawdzeniaDokumentu kSprawdzenia[] = {
    {KodKedu::ZUA, {tozsamosc, urodzenie, tytul, okresy}},
    {KodKedu::ZZA, {tozsamosc, urodzenie, tytul, okresy, rodzajZZA}},
    {KodKedu::ZIUA, {tozsamosc, urodzenie, poprzedniaTozsamosc}},
    {KodKedu::ZCNA, {tozsamosc, urodzenie}},
    {KodKedu::ZCZA, {tozsamosc, urodzenie}},
    {KodKedu::ZWUA, {tozsamosc, urodzenie, tytul, ustanie}},
    {KodKedu::RCA, {tozsamosc, tytul}},
    {KodKedu::RNA, {tozsamosc, tytul}},
    {KodKedu::RZA, {tozsamosc, tytul}},
    {KodKedu::RSA, {tozsamosc, tytul}},
};

/// Family members by their employee, those that either document marks.
class Rodziny {
public:
    explicit Rodziny(Sesja& sesja) { rs_.Open(sesja.cnPlace); }

    [[nodiscard]] QList<Wiersz> oznaczeni(qint64 prcId, Kolumna znak) const {
        QList<Wiersz> wynik;
        for (const Zakladka z : rs_.wiersze(prcId)) {
            const Wiersz w(rs_, z);
            if (w.liczba(znak) == 1 || w.liczba(znak) == 2) wynik.append(w);
        }
        return wynik;
    }

private:
    Recordset rs_{RODZINA};
};

class Kontrola {
public:
    Kontrola(Otoczenie& o, const ZamowienieKedu& z) : o_(o), z_(z), rodziny_(o.sesja) {}

    QList<UwagaKedu> sprawdz() {
        platnik();
        for (const DokumentKedu& d : DokumentyKedu())
            if (z_.wybor.jest(d.kod)) oznaczenia(d);
        const QList<qint64> numery = z_.prcId != 0 ? QList<qint64>{z_.prcId} : ListaAktywnych(o_.sesja);
        for (const qint64 prcId : numery) pracownik(prcId);
        for (const DokumentKedu& d : DokumentyKedu())
            if (d.petla != Petla::Raport || !z_.wybor.jest(d.kod))
                continue;
            else
                raport(d);
        return uwagi_;
    }

private:
    void dopisz(MiejscePoprawki gdzie, qint64 prcId, const QString& kto, const QString& dokumenty,
                const QString& uwaga) {
        if (!uwaga.isEmpty()) uwagi_.append({gdzie, prcId, kto, dokumenty, uwaga});
    }

    void platnik() {
        const QString kto = QStringLiteral("Płatnik");
        if (o_.stale.NIP.trimmed().isEmpty())
            dopisz(MiejscePoprawki::Stale, 0, kto, QStringLiteral("wszystkie"),
                   QStringLiteral("nie ma numeru NIP"));
        if (o_.stale.Regon.trimmed().isEmpty())
            dopisz(MiejscePoprawki::Stale, 0, kto, QStringLiteral("wszystkie"),
                   QStringLiteral("nie ma numeru REGON"));
        if (o_.stale.NazwaSkrocona.trimmed().isEmpty())
            dopisz(MiejscePoprawki::Stale, 0, kto, QStringLiteral("wszystkie"),
                   QStringLiteral("nie ma nazwy skróconej"));
    }

    /// Whether anything is marked for the document at all.
    void oznaczenia(const DokumentKedu& d) {
        const QString nazwa = d.nazwa.toString();
        const QString platnik = QStringLiteral("Płatnik");
        if (d.petla == Petla::Konta && IleOznaczonych(o_, d.kod) == 0)
            dopisz(MiejscePoprawki::Konta, 0, platnik, nazwa,
                   QStringLiteral("żadne konto nie jest oznaczone"));
        if (d.petla == Petla::Adresy && IleOznaczonych(o_, d.kod) == 0)
            dopisz(MiejscePoprawki::Adresy, 0, platnik, nazwa,
                   QStringLiteral("żaden adres nie jest oznaczony"));
        if (z_.prcId == 0 && d.kod == KodKedu::RCA)
            dopisz(MiejscePoprawki::Brak, 0, {}, nazwa,
                   QStringLiteral("dla wszystkich wyjdzie bez osób; zrób go dla jednego pracownika"));
        if (z_.prcId == 0 && d.kod != KodKedu::RCA && IleOznaczonych(o_, d.kod) == 0 &&
            d.petla != Petla::Konta && d.petla != Petla::Adresy)
            dopisz(MiejscePoprawki::Brak, 0, {}, nazwa,
                   QStringLiteral("nikt nie jest oznaczony do tego dokumentu"));
    }

    /// Whether the employee gets the document.
    [[nodiscard]] bool dostaje(const DokumentKedu& d, const Kartoteka& k) const {
        if (!z_.wybor.jest(d.kod)) return false;
        switch (d.petla) {
        case Petla::Pracownik: {
            const qint64 znak = k.zus ? k.zus->liczba(d.znak) : 0;
            return znak >= 1 && znak <= d.najwyzszy;
        }
        case Petla::Rodzina:
            return !rodziny_.oznaczeni(k.prcId, d.znak).isEmpty();
        case Petla::Raport:
            return z_.prcId != 0 || MaWierszRaportu(d.kod, k.komplet, k.zus);
        default:
            return false;
        }
    }

    void pracownik(qint64 prcId) {
        const Kartoteka k(o_.sesja, prcId);
        // A remark stands once, with all the documents that it is true of.
        std::map<QString, QStringList> wgUwagi;
        QStringList kolejnosc;
        const auto zapisz = [&](const QString& uwaga, const QString& dokument) {
            if (uwaga.isEmpty()) return;
            if (!wgUwagi.contains(uwaga)) kolejnosc += uwaga;
            wgUwagi[uwaga] += dokument;
        };
        for (const auto& [kod, sprawdzenia] : kSprawdzenia) {
            const DokumentKedu& d = dokumentKedu(kod);
            if (!dostaje(d, k)) {
                if (z_.prcId != 0 && z_.wybor.jest(kod))
                    zapisz(QStringLiteral("nie jest oznaczony do tego dokumentu"), d.nazwa.toString());
                continue;
            }
            if (!k.komplet) {
                zapisz(QStringLiteral("brakuje części danych w kadrach"), d.nazwa.toString());
                continue;
            }
            for (const Sprawdzenie s : sprawdzenia)
                if (s)
                    for (const QString& uwaga : s(k)) zapisz(uwaga, d.nazwa.toString());
            if (d.petla == Petla::Rodzina) rodzina(d, k);
        }
        for (const QString& uwaga : kolejnosc)
            dopisz(MiejscePoprawki::Pracownik, prcId, k.nazwisko(), wgUwagi[uwaga].join(QStringLiteral(", ")),
                   uwaga);
    }

    void rodzina(const DokumentKedu& d, const Kartoteka& k) {
        for (const Wiersz& w : rodziny_.oznaczeni(k.prcId, d.znak)) {
            const QString kto = QStringLiteral("%1 (rodzina: %2 %3)")
                                    .arg(k.nazwisko(), w.tekst(RODZINA("Imie")), w.tekst(RODZINA("Naz")));
            const QString nazwa = d.nazwa.toString();
            if (pusty(w, RODZINA("pesel")) && pusty(w, RODZINA("Nip")) && pusty(w, RODZINA("dowod_ser")) &&
                pusty(w, RODZINA("dowod_nr")))
                dopisz(MiejscePoprawki::Rodzina, k.prcId, kto, nazwa,
                       QStringLiteral("nie ma numeru PESEL, NIP ani dowodu osobistego"));
            if (!w.data(RODZINA("data_ur")).isValid())
                dopisz(MiejscePoprawki::Rodzina, k.prcId, kto, nazwa,
                       QStringLiteral("nie ma daty urodzenia"));
            if (pusty(w, RODZINA("kod_pokr")))
                dopisz(MiejscePoprawki::Rodzina, k.prcId, kto, nazwa,
                       QStringLiteral("nie ma kodu pokrewieństwa"));
        }
    }

    /// The month of a report and who has a place in it but no list row.
    void raport(const DokumentKedu& d) {
        const auto zamowiony = z_.raporty.find(d.kod);
        if (zamowiony == z_.raporty.end()) return;
        const RokMies rm = zamowiony->second.miesiac;
        const OtwartyMiesiac miesiac(o_.sesja, rm);
        if (!miesiac.jest()) {
            dopisz(MiejscePoprawki::Brak, 0, {}, d.nazwa.toString(),
                   QStringLiteral("nie ma listy płac za %1").arg(rm.napis()));
            return;
        }
        if (d.kod == KodKedu::RZA) zleceniobiorcy(d);
    }

    void zleceniobiorcy(const DokumentKedu& d) {
        if (!z_.zlecenia.od.isValid() || !z_.zlecenia.dokad.isValid()) return;
        PrzygotowaneZapytanie umowy(o_.sesja.cnPlace, Zapytanie(UZL)
                                                          .kolumny(UZL("prc_id"))
                                                          .gdzie(UZL("data_wyp") >= z_.zlecenia.od &&
                                                                 UZL("data_wyp") <= z_.zlecenia.dokad)
                                                          .wedlug(UZL("prc_id"))
                                                          .rozne());
        std::set<qint64> numery;
        for (auto u = umowy.uruchom(); u.nastepny();) numery.insert(u.liczba(UZL("prc_id")));
        for (const qint64 prcId : numery) {
            if ((z_.prcId != 0 && z_.prcId != prcId) || !o_.sesja.rsPLA.wiersze(prcId).isEmpty()) continue;
            dopisz(
                MiejscePoprawki::Pracownik, prcId, Kartoteka(o_.sesja, prcId).nazwisko(), d.nazwa.toString(),
                QStringLiteral("ma umowę zlecenie, a nie ma go na liście płac; jego blok będzie bez danych"));
        }
    }

    Otoczenie& o_;
    const ZamowienieKedu& z_;
    Rodziny rodziny_;
    QList<UwagaKedu> uwagi_;
};

} // namespace

QList<UwagaKedu> SprawdzKedu(Otoczenie& otoczenie, const ZamowienieKedu& zamowienie) {
    return Kontrola(otoczenie, zamowienie).sprawdz();
}

int IleOznaczonych(Otoczenie& otoczenie, KodKedu kod) {
    const DokumentKedu& d = dokumentKedu(kod);
    Sesja& s = otoczenie.sesja;
    int ile = 0;
    switch (d.petla) {
    case Petla::Pracownik:
        for (const qint64 prcId : ListaAktywnych(s)) {
            const auto zus = s.rsPRACZUS.szukaj(prcId);
            ile += zus && zus->liczba(d.znak) >= 1 && zus->liczba(d.znak) <= d.najwyzszy;
        }
        return ile;
    case Petla::Rodzina: {
        const Rodziny rodziny(s);
        for (const qint64 prcId : ListaAktywnych(s)) {
            std::set<qint64> rodzaje;
            for (const Wiersz& w : rodziny.oznaczeni(prcId, d.znak)) rodzaje.insert(w.liczba(d.znak));
            ile += static_cast<int>(rodzaje.size());
        }
        return ile;
    }
    case Petla::Konta: {
        Recordset konta(KONTA);
        konta.Open(s.cnPlace);
        for (const Wiersz w : konta.wiersze()) ile += w.liczba(d.znak) == 1 || w.liczba(d.znak) == 2;
        return ile;
    }
    case Petla::Adresy: {
        Recordset adresy(M_PRACY);
        adresy.Open(s.cnPlace);
        for (const Wiersz w : adresy.wiersze()) ile += w.tekst(d.znak) == u"1" || w.tekst(d.znak) == u"2";
        return ile;
    }
    case Petla::Raport:
        for (const qint64 prcId : ListaAktywnych(s)) {
            const Kartoteka k(s, prcId);
            ile += MaWierszRaportu(kod, k.komplet, k.zus);
        }
        return ile;
    default:
        return -1;
    }
}

} // namespace tornel::zus
