#include "store/Recordset.h"
#include "common/Blad.h"
#include "store/Komorki.h"
#include <algorithm>
#include <bit>
#include <numeric>
#include <tuple>

namespace tornel::store {

namespace {

/// Rows made, read or freed at a time, so that no vector grows by doubling far past its need.
constexpr std::size_t kPrzyrost = 4096;

} // namespace

void Recordset::Open(Polaczenie& polaczenie, const QString& nazwa) { Open(polaczenie, nazwa, {}); }

void Recordset::Open(Polaczenie& polaczenie, const QString& nazwa, const Warunek& warunek) {
    Recordset nowy(*tabela_);
    nowy.polaczenie_ = &polaczenie;
    nowy.nazwa_ = nazwa.isEmpty() ? napis(tabela_->nazwa) : nazwa;
    nowy.warunekOtwarcia_ = warunek;
    nowy.sort_ = sort_;
    nowy.wczytaj();
    *this = std::move(nowy);
}

void Recordset::Close() {
    Recordset pusty(*tabela_);
    *this = std::move(pusty);
}

void Recordset::Requery() {
    const auto sort = sort_;
    const auto filtr = filtr_;
    Open(*polaczenie_, nazwa_, Warunek(warunekOtwarcia_));
    sort_ = sort;
    filtr_ = filtr;
    ulozKolejnosc();
    pozycja_ = 0;
}

void Recordset::wczytaj() {
    QByteArray sql = "SELECT rowid, " + listaKolumn(*tabela_) + " FROM " + nazwaSql(nazwa_.toStdString());
    for (qsizetype i = 0; i < warunekOtwarcia_.size(); ++i)
        sql += (i == 0 ? " WHERE " : " AND ") + nazwaSql(warunekOtwarcia_[i].kolumna.def().nazwa) +
               znakOperatora(warunekOtwarcia_[i].op) + "?";
    teksty_ = {QString()};
    pula_ = {{QString(), 0}};
    ostatnieTeksty_.fill(0);
    Instrukcja instrukcja(*polaczenie_, sql.toStdString());
    for (qsizetype i = 0; i < warunekOtwarcia_.size(); ++i)
        wiazWartosc(instrukcja, static_cast<int>(i), warunekOtwarcia_[i].wartosc);
    while (instrukcja.wiersz()) {
        const int wiersz = nowyWiersz();
        rowid_.back() = instrukcja.liczba(0);
        stany_.back() = Stan::Czysty;
        czytajWiersz(instrukcja, wiersz, 1, rowid_.back());
        indeksuj(wiersz);
    }
    ulozKolejnosc();
    pozycja_ = 0;
}

void Recordset::czytajWiersz(const Instrukcja& instrukcja, int wiersz, int pierwszaKolumna,
                             qint64 nrWiersza) {
    for (int i = 0; i < szerokosc(); ++i) {
        const KolumnaDef& k = tabela_->kolumny[static_cast<std::size_t>(i)];
        const int zrodlo = i + pierwszaKolumna;
        std::optional<Komorka> wartosc = kNull;
        if (const int typ = instrukcja.typ(zrodlo); typ != SQLITE_NULL) {
            if (!jestTekstem(k.typ)) {
                wartosc = slowo(instrukcja, zrodlo, k.typ, typ);
            } else if (typ == SQLITE_TEXT) {
                const std::string_view utf8 = instrukcja.utf8(zrodlo);
                wartosc =
                    utf8.empty()
                        ? 0
                        : tekstNaKomorke(QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size())));
            } else {
                wartosc.reset();
            }
        }
        if (!wartosc) zglosUszkodzenie(*polaczenie_, *tabela_, nazwa_, nrWiersza, k);
        komorka(wiersz, i) = *wartosc;
    }
}

void Recordset::zapowiedzNowe(qsizetype ile) {
    const std::size_t wierszy = rowid_.size() + static_cast<std::size_t>(ile);
    komorki_.reserve(wierszy * tabela_->kolumny.size());
    rowid_.reserve(wierszy);
    stany_.reserve(wierszy);
    kolejnosc_.reserve(wierszy);
    oczekujace_.reserve(oczekujace_.size() + static_cast<std::size_t>(ile));
    indeks_.reserve(wierszy);
}

int Recordset::nowyWiersz() {
    const auto wiersz = static_cast<int>(rowid_.size());
    const std::size_t potrzeba = (rowid_.size() + 1) * tabela_->kolumny.size();
    if (potrzeba > komorki_.capacity())
        komorki_.reserve(std::max(potrzeba + potrzeba / 4,
                                  std::min(kPrzyrost, rowid_.size() + 16) * tabela_->kolumny.size()));
    komorki_.resize(potrzeba, kNull);
    rowid_.push_back(0);
    stany_.push_back(Stan::Nowy);
    return wiersz;
}

int Recordset::porownaj(int a, int b) const {
    for (const Kolumna& k : sort_) {
        const Komorka x = komorka(a, k.nr), y = komorka(b, k.nr);
        if (x == y) continue;
        if (x == kNull || y == kNull) return x == kNull ? -1 : 1;
        const Typ typ = k.def().typ;
        if (jestTekstem(typ)) return puli(x) < puli(y) ? -1 : 1;
        if (jestRzeczywista(typ)) return std::bit_cast<double>(x) < std::bit_cast<double>(y) ? -1 : 1;
        return x < y ? -1 : 1;
    }
    return 0;
}

void Recordset::ulozKolejnosc() {
    kolejnosc_.clear();
    kolejnosc_.reserve(rowid_.size());
    for (int w = 0; w < static_cast<int>(rowid_.size()); ++w)
        if (stany_[static_cast<std::size_t>(w)] != Stan::Usuniety && spelnia(w, filtr_))
            kolejnosc_.push_back(w);
    if (!sort_.isEmpty())
        std::stable_sort(kolejnosc_.begin(), kolejnosc_.end(),
                         [this](int a, int b) { return porownaj(a, b) < 0; });
}

void Recordset::wstawDoKolejnosci(int wiersz) {
    auto miejsce = kolejnosc_.end();
    if (!sort_.isEmpty() && !kolejnosc_.empty() && porownaj(wiersz, kolejnosc_.back()) < 0)
        miejsce = std::upper_bound(kolejnosc_.begin(), kolejnosc_.end(), wiersz,
                                   [this](int a, int b) { return porownaj(a, b) < 0; });
    pozycja_ = static_cast<int>(miejsce - kolejnosc_.begin());
    kolejnosc_.insert(miejsce, wiersz);
}

int Recordset::miejsceWKolejnosci(int wiersz) const {
    // Mostly the next row is asked for, or all stand as they were read.
    for (const int domysl : {pozycja_ + 1, wiersz})
        if (domysl >= 0 && domysl < RecordCount() && kolejnosc_[static_cast<std::size_t>(domysl)] == wiersz)
            return domysl;
    auto od = kolejnosc_.begin(), dokad = kolejnosc_.end();
    if (!sort_.isEmpty())
        std::tie(od, dokad) = std::equal_range(kolejnosc_.begin(), kolejnosc_.end(), wiersz,
                                               [this](int a, int b) { return porownaj(a, b) < 0; });
    const auto miejsce = std::find(od, dokad, wiersz);
    return miejsce == dokad ? -1 : static_cast<int>(miejsce - kolejnosc_.begin());
}

void Recordset::usunZKolejnosci(int wiersz) {
    if (const int miejsce = miejsceWKolejnosci(wiersz); miejsce >= 0)
        kolejnosc_.erase(kolejnosc_.begin() + miejsce);
}

void Recordset::Sort(const QList<Kolumna>& kolumny) {
    const Zakladka tu = Bookmark();
    sort_ = kolumny;
    ulozKolejnosc();
    Bookmark(tu);
}

void Recordset::Filter(const Warunek& warunek) {
    filtr_ = warunek;
    ulozKolejnosc();
    pozycja_ = 0;
}

int Recordset::RecordCount() const { return static_cast<int>(kolejnosc_.size()); }

Zakladka Recordset::Bookmark() const {
    return BOF_() || EOF_() ? -1 : kolejnosc_[static_cast<std::size_t>(pozycja_)];
}

void Recordset::Bookmark(Zakladka zakladka) {
    const int miejsce = zakladka >= 0 ? miejsceWKolejnosci(zakladka) : -1;
    pozycja_ = miejsce >= 0 ? miejsce : RecordCount();
}

namespace {

/// -1, 0, 1 of two values of one kind; nothing when they cannot be compared (null, different kinds).
std::optional<int> porownajWartosci(const Wartosc& a, const Wartosc& b) {
    const auto znak = [](const auto& x, const auto& y) { return x < y ? -1 : (y < x ? 1 : 0); };
    if (a.index() != b.index() || a.index() == 0) return std::nullopt;
    return std::visit(
        [&](const auto& x) -> std::optional<int> {
            using T = std::decay_t<decltype(x)>;
            if constexpr (std::is_same_v<T, std::monostate>)
                return std::nullopt;
            else
                return znak(x, std::get<T>(b));
        },
        a);
}

} // namespace

bool Recordset::spelnia(int wiersz, const Warunek& warunek) const {
    using Op = Kryterium::Operator;
    return std::all_of(warunek.begin(), warunek.end(), [&](const Kryterium& k) {
        const Wartosc moja = wartoscKomorki(wiersz, k.kolumna.nr);
        if (k.op == Op::Rowne) return moja == k.wartosc;
        if (k.op == Op::Rozne) return moja != k.wartosc;
        const auto znak = porownajWartosci(moja, k.wartosc);
        if (!znak) return false;
        switch (k.op) {
        case Op::NieMniejsze:
            return *znak >= 0;
        case Op::NieWieksze:
            return *znak <= 0;
        case Op::Wieksze:
            return *znak > 0;
        default:
            return *znak < 0;
        }
    });
}

bool Recordset::Find(const Kryterium& kryterium, Skad skad) {
    if (skad == Skad::Poczatek) pozycja_ = 0;
    for (pozycja_ = std::max(pozycja_, 0); pozycja_ < RecordCount(); ++pozycja_)
        if (spelnia(kolejnosc_[static_cast<std::size_t>(pozycja_)], {kryterium})) return true;
    return false;
}

int Recordset::wierszKlucza(KluczWiersza szukany, IleKolumn kolumny) const {
    // The first in order wins where several rows share the key's first column.
    int najlepszy = -1;
    const auto [od, dokad] = indeks_.equal_range(szukany.first);
    for (auto i = od; i != dokad; ++i) {
        const int w = i->second;
        if (kolumny == IleKolumn::Obie && klucz(w).second != szukany.second) continue;
        if (!filtr_.isEmpty() && !spelnia(w, filtr_)) continue;
        const int znak = najlepszy < 0 ? -1 : porownaj(w, najlepszy);
        if (znak < 0 || (znak == 0 && w < najlepszy)) najlepszy = w;
    }
    return najlepszy;
}

Recordset::Komorka Recordset::tekstWPuli(const QString& tekst) const {
    if (tekst.isEmpty()) return 0;
    Komorka& ostatni = ostatnieTeksty_[(static_cast<std::size_t>(tekst.size()) + tekst[0].unicode()) %
                                       ostatnieTeksty_.size()];
    if (tekst == puli(ostatni)) return ostatni;
    const auto miejsce = pula_.constFind(tekst);
    if (miejsce == pula_.constEnd()) return kNull;
    return ostatni = *miejsce;
}

int Recordset::wierszKlucza(qint64 k) const { return wierszKlucza({k, 0}, IleKolumn::Pierwsza); }
int Recordset::wierszKlucza(qint64 k, qint64 drugi) const {
    return wierszKlucza({k, drugi}, IleKolumn::Obie);
}

int Recordset::wierszKlucza(qint64 k, const QString& drugi) const {
    const Komorka c = tekstWPuli(drugi);
    return c == kNull ? -1 : wierszKlucza({k, c}, IleKolumn::Obie);
}

int Recordset::wierszKlucza(const QString& k) const {
    const Komorka c = tekstWPuli(k);
    return c == kNull ? -1 : wierszKlucza(c);
}

int Recordset::wierszKlucza(const QString& k, const QString& drugi) const {
    const Komorka c = tekstWPuli(k);
    return c == kNull ? -1 : wierszKlucza(c, drugi);
}

QList<Zakladka> Recordset::wiersze(qint64 pierwszy) const {
    QList<Zakladka> wynik;
    const auto [od, dokad] = indeks_.equal_range(pierwszy);
    for (auto i = od; i != dokad; ++i) wynik.append(i->second);
    std::sort(wynik.begin(), wynik.end());
    return wynik;
}

Recordset::KluczWiersza Recordset::klucz(int wiersz) const {
    const auto kolumna = [&](std::size_t i) {
        return kolumnyKlucza_[i] >= 0 ? komorka(wiersz, kolumnyKlucza_[i]) : 0;
    };
    return {kolumna(0), kolumna(1)};
}

void Recordset::indeksuj(int wiersz) {
    if (!tabela_->klucz.empty()) indeks_.emplace(klucz(wiersz).first, wiersz);
}

void Recordset::odindeksuj(int wiersz) {
    const auto [od, dokad] = indeks_.equal_range(klucz(wiersz).first);
    for (auto i = od; i != dokad; ++i)
        if (i->second == wiersz) {
            indeks_.erase(i);
            return;
        }
}

int Recordset::biezacy() const {
    if (!naWierszu())
        throw Blad(QStringLiteral("Tabela %1 nie stoi na żadnym wierszu.")
                       .arg(nazwa_.isEmpty()
                                ? QString::fromLatin1(tabela_->nazwa.data(),
                                                      static_cast<qsizetype>(tabela_->nazwa.size()))
                                : nazwa_));
    return kolejnosc_[static_cast<std::size_t>(pozycja_)];
}

void Recordset::obcaKolumna(Kolumna k) const {
    const bool znana = k.tabela && k.nr >= 0 && static_cast<std::size_t>(k.nr) < k.tabela->kolumny.size();
    throw Blad(QStringLiteral("Tabela %1 nie ma takiej kolumny: %2.")
                   .arg(napis(tabela_->nazwa),
                        znana ? napis(k.tabela->nazwa) + QLatin1Char('.') + napis(k.def().nazwa)
                              : QString::number(k.nr)));
}

bool Wiersz::jestNull(Kolumna k) const {
    rs_->wymagajKolumny(k);
    return rs_->komorka(wiersz_, k.nr) == Recordset::kNull;
}

double Wiersz::rzeczywista(Kolumna k) const {
    return std::bit_cast<double>(komorka(k, RodzajWartosci::Rzeczywista).value_or(0));
}

QString Wiersz::tekst(Kolumna k) const {
    const auto c = komorka(k, RodzajWartosci::Tekst);
    return c ? rs_->puli(*c) : QString();
}

QDate Wiersz::data(Kolumna k) const {
    const auto c = komorka(k, RodzajWartosci::Data);
    return c ? QDate::fromJulianDay(*c) : QDate();
}

bool Wiersz::flaga(Kolumna k) const {
    const auto c = komorka(k, RodzajWartosci::Tekst);
    return c && rs_->puli(*c).compare(QLatin1String("T"), Qt::CaseInsensitive) == 0;
}

Wartosc Wiersz::wartosc(Kolumna k) const {
    rs_->wymagajKolumny(k);
    return rs_->wartoscKomorki(wiersz_, k.nr);
}

Wartosc Recordset::wartoscKomorki(int wiersz, int kolumna) const {
    const Komorka c = komorka(wiersz, kolumna);
    if (c == kNull) return Null;
    const Typ typ = tabela_->kolumny[static_cast<std::size_t>(kolumna)].typ;
    if (jestTekstem(typ)) return puli(c);
    if (jestRzeczywista(typ)) return std::bit_cast<double>(c);
    if (typ == Typ::Currency) return Waluta::zSurowej(c);
    if (typ == Typ::Date) return QDate::fromJulianDay(c);
    return static_cast<qint64>(c);
}

Recordset::Komorka Recordset::tekstNaKomorke(const QString& tekst) {
    if (const Komorka znana = tekstWPuli(tekst); znana != kNull) return znana;
    const auto nowa = static_cast<Komorka>(teksty_.size());
    teksty_.append(tekst);
    pula_.insert(tekst, nowa);
    return nowa;
}

void Recordset::zaznaczZmiane(int wiersz) {
    Stan& stan = stany_[static_cast<std::size_t>(wiersz)];
    if (stan != Stan::Czysty) return;
    const auto poczatek = komorki_.begin() + static_cast<std::ptrdiff_t>(wiersz) * szerokosc();
    oryginaly_[wiersz] = std::vector<Komorka>(poczatek, poczatek + szerokosc());
    stan = Stan::Zmieniony;
    oczekujace_.push_back(wiersz);
}

void Recordset::zapisz(Kolumna k, Komorka wartosc) {
    const int wiersz = biezacy();
    if (komorka(wiersz, k.nr) == wartosc) return;
    zaznaczZmiane(wiersz);
    const bool kluczowa = k.nr == kolumnyKlucza_[0] || k.nr == kolumnyKlucza_[1];
    const bool sortujaca =
        std::any_of(sort_.begin(), sort_.end(), [&](const Kolumna& s) { return s.nr == k.nr; });
    if (kluczowa) odindeksuj(wiersz);
    if (sortujaca) usunZKolejnosci(wiersz);
    komorka(wiersz, k.nr) = wartosc;
    if (kluczowa) indeksuj(wiersz);
    if (sortujaca) wstawDoKolejnosci(wiersz);
}

void Recordset::ustaw(Kolumna k, Waluta kwota) {
    wymagajKolumny(k, RodzajWartosci::Kwota);
    if (kwota.surowa() == kNull)
        throw Przepelnienie(QStringLiteral("Kwota przekracza zakres liczb programu."));
    zapisz(k, kwota.surowa());
}

void Recordset::ustaw(Kolumna k, qint64 liczba) {
    wymagajKolumny(k);
    if (jestRzeczywista(k.def().typ)) return ustaw(k, static_cast<double>(liczba));
    wymagajKolumny(k, RodzajWartosci::Calkowita);
    const auto [min, maks] = zakresTypu(k.def().typ);
    if (liczba < min || liczba > maks)
        throw Przepelnienie(
            QStringLiteral("Liczba %1 nie mieści się w kolumnie %2.").arg(liczba).arg(napis(k.def().nazwa)));
    zapisz(k, liczba);
}

void Recordset::ustaw(Kolumna k, double liczba) {
    wymagajKolumny(k, RodzajWartosci::Rzeczywista);
    zapisz(k, std::bit_cast<Komorka>(liczba));
}

void Recordset::ustaw(Kolumna k, const QString& tekst) {
    wymagajKolumny(k, RodzajWartosci::Tekst);
    const int rozmiar = k.def().rozmiar;
    zapisz(k, tekstNaKomorke(rozmiar > 0 && tekst.size() > rozmiar ? tekst.left(rozmiar) : tekst));
}

void Recordset::ustaw(Kolumna k, QDate data) {
    wymagajKolumny(k, RodzajWartosci::Data);
    zapisz(k, data.isValid() ? data.toJulianDay() : kNull);
}

void Recordset::ustaw(Kolumna k, std::monostate) {
    wymagajKolumny(k);
    zapisz(k, kNull);
}

void Recordset::ustaw(Kolumna k, const Wartosc& wartosc) {
    std::visit([&](const auto& v) { ustaw(k, v); }, wartosc);
}

void Recordset::ustawFlage(Kolumna k, bool wlaczona) {
    ustaw(k, wlaczona ? QStringLiteral("T") : QStringLiteral("N"));
}

void Recordset::przyjmijNowy(int wiersz) {
    oczekujace_.push_back(wiersz);
    indeksuj(wiersz);
    wstawDoKolejnosci(wiersz);
}

int Recordset::nowyWierszZer() {
    const int wiersz = nowyWiersz();
    for (int i = 0; i < szerokosc(); ++i)
        if (tabela_->kolumny[static_cast<std::size_t>(i)].typ != Typ::Date) komorka(wiersz, i) = 0;
    return wiersz;
}

void Recordset::AddNew() { przyjmijNowy(nowyWiersz()); }
void Recordset::AddNewZero() { przyjmijNowy(nowyWierszZer()); }

void Recordset::AddNewZero(qint64 pierwszy, const QString& drugi) {
    const Kolumna kluczowa = tabela_->nr(kolumnyKlucza_[0]);
    if (const auto [min, maks] = zakresTypu(kluczowa.def().typ); pierwszy < min || pierwszy > maks)
        throw Przepelnienie(QStringLiteral("Numer %1 nie mieści się w tabeli %2.").arg(pierwszy).arg(nazwa_));
    const int wiersz = nowyWierszZer();
    komorka(wiersz, kluczowa.nr) = pierwszy;
    if (!drugi.isNull()) komorka(wiersz, kolumnyKlucza_[1]) = tekstNaKomorke(drugi);
    przyjmijNowy(wiersz);
}

void Recordset::Delete() {
    const int wiersz = biezacy();
    const int tu = pozycja_;
    odindeksuj(wiersz);
    kolejnosc_.erase(kolejnosc_.begin() + tu);
    Stan& stan = stany_[static_cast<std::size_t>(wiersz)];
    if (stan == Stan::Czysty) zaznaczZmiane(wiersz);
    if (stan == Stan::Nowy) std::erase(oczekujace_, wiersz);
    stan = Stan::Usuniety;
}

} // namespace tornel::store
