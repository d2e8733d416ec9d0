#include "store/OpisStruktury.h"
#include "common/Blad.h"
#include "common/Csv.h"
#include "common/Liczby.h"
#include <algorithm>
#include <array>
#include <limits>
#include <QRegularExpression>

namespace tornel::store {

namespace {

constexpr int kNajdluzszaNazwa = 50;
constexpr int kNajwiekszyRozmiar = 1'000'000;
constexpr int kPodanaSzerokosc = -1;

/// Words of column types and the sizes that go with them.
struct SlowoTypu {
    QStringView slowo;
    int rozmiar; ///< `kPodanaSzerokosc` for the width in parentheses
};
constexpr std::array<SlowoTypu, 10> kSlowa{{
    {u"CHAR", kPodanaSzerokosc},
    {u"TEXT", kPodanaSzerokosc},
    {u"MEMO", 0},
    {u"BYTE", 1},
    {u"SHORT", 2},
    {u"INTEGER", 4},
    {u"SINGLE", 4},
    {u"DOUBLE", 8},
    {u"DATE", 8},
    {u"CURRENCY", 8},
}};

const SlowoTypu* slowoTypu(const QString& slowo) {
    const QString szukane = slowo.trimmed().toUpper();
    const auto jest = std::ranges::find(kSlowa, QStringView(szukane), &SlowoTypu::slowo);
    return jest == kSlowa.end() ? nullptr : &*jest;
}

/// Word and size of a column by its type in the file, as "TEXT(20)" or "MEMO TEXT"; empty for a foreign type.
PoleStruktury NazwaTypu(const QString& zPliku) {
    static const QRegularExpression wzor(QStringLiteral("^([A-Z]+)(?: TEXT)?(?:\\(([0-9]{1,6})\\))?$"));
    const QRegularExpressionMatch czesci = wzor.match(zPliku.trimmed().toUpper());
    const SlowoTypu* typ = czesci.hasMatch() ? slowoTypu(czesci.captured(1)) : nullptr;
    if (!typ) return {};
    const bool szerokosc = typ->rozmiar == kPodanaSzerokosc;
    return {0, {}, typ->slowo.toString(), szerokosc ? czesci.captured(2).toInt() : typ->rozmiar};
}

/// The rows below a header that has just these columns.
QList<WierszCsv> wierszePliku(const QByteArray& csv, const QStringList& naglowek) {
    QList<WierszCsv> wiersze = CzytajCsv(csv);
    if (wiersze.isEmpty()) return {};
    QStringList kolumny;
    for (const QString& pole : wiersze.first().pola) kolumny += pole.trimmed().toUpper();
    if (kolumny != naglowek)
        throw Blad(QStringLiteral("Wiersz %1: powinny tu być kolumny %2.")
                       .arg(wiersze.first().linia)
                       .arg(naglowek.join(u';')));
    wiersze.removeFirst();
    for (const WierszCsv& w : wiersze)
        if (w.pola.size() != naglowek.size())
            throw Blad(QStringLiteral("Wiersz %1: pól jest %2, a kolumn %3.")
                           .arg(w.linia)
                           .arg(w.pola.size())
                           .arg(naglowek.size()));
    return wiersze;
}

int liczbaPola(const WierszCsv& wiersz, int nr, int najwiecej) {
    const auto liczba = CzytajLiczbe(wiersz.pola[nr], 0, najwiecej);
    if (!liczba)
        throw Blad(QStringLiteral("Wiersz %1: „%2” nie jest liczbą.").arg(wiersz.linia).arg(wiersz.pola[nr]));
    return static_cast<int>(*liczba);
}

QString nazwaPola(const WierszCsv& wiersz, int nr) {
    QString nazwa = wiersz.pola[nr].trimmed();
    if (nazwa.isEmpty() || nazwa.size() > kNajdluzszaNazwa || nazwa.contains(QChar(u'\0')))
        throw Blad(QStringLiteral("Wiersz %1: nazwa jest pusta albo za długa.").arg(wiersz.linia));
    return nazwa;
}

const QStringList& naglowekTabel() {
    static const QStringList kolumny{QStringLiteral("ID"), QStringLiteral("NAZWA")};
    return kolumny;
}

const QStringList& naglowekPol() {
    static const QStringList kolumny{QStringLiteral("ID"), QStringLiteral("POLE"), QStringLiteral("TYP"),
                                     QStringLiteral("ROZMIAR")};
    return kolumny;
}

} // namespace

QList<PoleStruktury> StrukturaBazy::polaTabeli(int id) const {
    QList<PoleStruktury> wynik;
    for (const PoleStruktury& p : pola)
        if (p.id == id) wynik += p;
    return wynik;
}

bool tabelaMiesiaca(const QString& nazwa) {
    constexpr int cyfr = 6;
    const QString koniec = nazwa.right(cyfr);
    return koniec.size() == cyfr &&
           std::all_of(koniec.begin(), koniec.end(), [](QChar z) { return z >= u'0' && z <= u'9'; });
}

StrukturaBazy PobierzStrukture(Polaczenie& polaczenie) {
    StrukturaBazy wynik;
    Instrukcja tabele(polaczenie,
                      "SELECT name FROM sqlite_master WHERE type='table' AND name NOT LIKE 'sqlite_%' "
                      "ORDER BY name");
    Instrukcja kolumny(polaczenie, "SELECT name, type FROM pragma_table_info(?) ORDER BY cid");
    while (tabele.wiersz()) {
        const QString nazwa = tabele.tekst(0);
        if (tabelaMiesiaca(nazwa)) continue;
        const int id = static_cast<int>(wynik.tabele.size()) + 1;
        wynik.tabele += TabelaStruktury{id, nazwa};
        for (kolumny.wiaz(0, nazwa); kolumny.wiersz();) {
            PoleStruktury pole = NazwaTypu(kolumny.tekst(1));
            pole.id = id;
            pole.pole = kolumny.tekst(0);
            wynik.pola += pole;
        }
        kolumny.od_nowa();
    }
    return wynik;
}

QString TypSQL(const QString& slowo, int rozmiar) {
    const SlowoTypu* typ = slowoTypu(slowo);
    if (!typ) return {};
    return typ->rozmiar == kPodanaSzerokosc ? QStringLiteral("%1(%2)").arg(typ->slowo).arg(rozmiar)
                                            : typ->slowo.toString();
}

QByteArray TabeleDoPliku(const StrukturaBazy& struktura) {
    QString csv = naglowekTabel().join(u';') + u'\n';
    for (const TabelaStruktury& t : struktura.tabele)
        csv += QStringLiteral("%1;%2\n").arg(QString::number(t.id), PoleCsv(t.nazwa));
    return csv.toUtf8();
}

QByteArray PolaDoPliku(const StrukturaBazy& struktura) {
    QString csv = naglowekPol().join(u';') + u'\n';
    for (const PoleStruktury& p : struktura.pola)
        csv += QStringLiteral("%1;%2;%3;%4\n")
                   .arg(QString::number(p.id), PoleCsv(p.pole), p.typ, QString::number(p.rozmiar));
    return csv.toUtf8();
}

QList<TabelaStruktury> TabeleZPliku(const QByteArray& csv) {
    QList<TabelaStruktury> wynik;
    for (const WierszCsv& w : wierszePliku(csv, naglowekTabel()))
        wynik += TabelaStruktury{liczbaPola(w, 0, std::numeric_limits<int>::max()), nazwaPola(w, 1)};
    return wynik;
}

QList<PoleStruktury> PolaZPliku(const QByteArray& csv) {
    QList<PoleStruktury> wynik;
    for (const WierszCsv& w : wierszePliku(csv, naglowekPol()))
        wynik += PoleStruktury{liczbaPola(w, 0, std::numeric_limits<int>::max()), nazwaPola(w, 1),
                               w.pola[2].trimmed().toUpper(), liczbaPola(w, 3, kNajwiekszyRozmiar)};
    return wynik;
}

} // namespace tornel::store
