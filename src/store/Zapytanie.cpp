#include "store/Zapytanie.h"
#include "common/Blad.h"
#include "store/Komorki.h"
#include <algorithm>
#include <bit>

namespace tornel::store {

namespace {

/// Columns of the statement before those of the query: number of the source, number of the row.
constexpr int kZrodlo = 0, kNrWiersza = 1, kPierwszaKolumna = 2;

[[noreturn]] void zleZapytanie(Kolumna k, const QString& powod) {
    throw Blad(QStringLiteral("Zapytanie do tabeli %1: %2.")
                   .arg(k.tabela ? napis(k.tabela->nazwa) : QString(), powod));
}

void wymagajKolumny(Kolumna k) {
    if (!k.tabela || k.nr < 0 || static_cast<std::size_t>(k.nr) >= k.tabela->kolumny.size())
        zleZapytanie(k, QStringLiteral("nie ma takiej kolumny"));
}

} // namespace

WarunekZapytania::WarunekZapytania(Kolumna kolumna, Kryterium::Operator op, Strona strona) {
    wymagajKolumny(kolumna);
    const auto* wartosc = std::get_if<Wartosc>(&strona);
    if (wartosc && !pasuje(*wartosc, kolumna.def().typ))
        zleZapytanie(kolumna,
                     QStringLiteral("wartość innego rodzaju niż kolumna %1").arg(napis(kolumna.def().nazwa)));
    // The plus sign keeps the engine from trying every date as a number.
    const bool zakresDat = kolumna.def().typ == Typ::Date && op != Kryterium::Operator::Rowne;
    sql_ = (zakresDat ? "+" : "") + nazwaSql(kolumna.def().nazwa) + znakOperatora(op) + '?';
    miejsca_.push_back({kolumna, std::move(strona)});
}

WarunekZapytania WarunekZapytania::bezDaty(Kolumna k) {
    wymagajKolumny(k);
    WarunekZapytania wynik;
    const QByteArray nazwa = nazwaSql(k.def().nazwa);
    wynik.sql_ = "(typeof(" + nazwa + ") <> 'text' OR " + nazwa +
                 " NOT GLOB '[0-9][0-9][0-9][0-9]-[0-9][0-9]-[0-9][0-9]')";
    return wynik;
}

WarunekZapytania WarunekZapytania::zlacz(const char* spojnik, const WarunekZapytania& b) const {
    if (sql_.isEmpty()) return b;
    WarunekZapytania wynik;
    wynik.sql_ = '(' + sql_ + spojnik + b.sql_ + ')';
    wynik.miejsca_ = miejsca_;
    wynik.miejsca_.insert(wynik.miejsca_.end(), b.miejsca_.begin(), b.miejsca_.end());
    return wynik;
}

Zapytanie& Zapytanie::gdzie(const WarunekZapytania& warunek) {
    warunek_ = warunek_ && warunek;
    return *this;
}

Zapytanie& Zapytanie::zTabel(const QStringList& nazwy) {
    zrodla_.clear();
    for (const QString& nazwa : nazwy) zrodla_.push_back({wzor_, nazwa});
    return *this;
}

Zapytanie& Zapytanie::oraz(const TabelaDef& inna) {
    zrodla_.push_back({&inna, {}});
    return *this;
}

Zapytanie& Zapytanie::wedlugZapisu() {
    zapis_ = Porzadek::Zapisu;
    return *this;
}

Zapytanie& Zapytanie::rozne() {
    powtorzenia_ = Powtorzenia::Znikaja;
    return *this;
}

Zapytanie& Zapytanie::pierwszych(int ile) {
    pierwszych_ = ile;
    return *this;
}

void Zapytanie::sprawdz() const {
    std::vector<Kolumna> wszystkie = kolumny_;
    wszystkie.insert(wszystkie.end(), porzadek_.begin(), porzadek_.end());
    for (const auto& miejsce : warunek_.miejsca_) wszystkie.push_back(miejsce.kolumna);
    for (const Kolumna k : wszystkie) {
        wymagajKolumny(k);
        if (k.tabela != wzor_)
            zleZapytanie(k, QStringLiteral("kolumna innej tabeli niż %1").arg(napis(wzor_->nazwa)));
        for (const Zrodlo& z : zrodla_) {
            const int nr = z.tabela->numer(k.def().nazwa);
            if (nr < 0 || rodzajWartosci(z.tabela->nr(nr).def().typ) != rodzajWartosci(k.def().typ))
                zleZapytanie(z.tabela->nr(nr), QStringLiteral("brak kolumny %1").arg(napis(k.def().nazwa)));
        }
    }
}

int Zapytanie::parametrow() const {
    int ile = 0;
    for (const auto& miejsce : warunek_.miejsca_)
        if (const auto* p = std::get_if<Parametr>(&miejsce.strona)) ile = std::max(ile, p->nr + 1);
    return ile;
}

QByteArray Zapytanie::sql() const {
    // Parameters keep their numbers, the fixed values follow them; so each stands once however often it is
    // used.
    QByteArray warunek;
    int stala = parametrow(), miejsce = 0;
    for (const char znak : warunek_.sql_) {
        warunek += znak;
        if (znak != '?') continue;
        const auto* p = std::get_if<Parametr>(&warunek_.miejsca_[static_cast<std::size_t>(miejsce++)].strona);
        warunek += QByteArray::number(p ? p->nr + 1 : ++stala);
    }
    QByteArray lista;
    for (const Kolumna k : kolumny_) lista += ", " + nazwaSql(k.def().nazwa);
    const bool rozne = powtorzenia_ == Powtorzenia::Znikaja;
    QByteArray wynik;
    for (std::size_t z = 0; z < zrodla_.size(); ++z) {
        const QString nazwa = zrodla_[z].nazwa.isEmpty() ? napis(zrodla_[z].tabela->nazwa) : zrodla_[z].nazwa;
        wynik += (z == 0 ? "SELECT " : " UNION ALL SELECT ") +
                 (rozne ? QByteArray("DISTINCT 0, 0")
                        : QByteArray::number(static_cast<qulonglong>(z)) + ", rowid") +
                 lista + " FROM " + nazwaSql(nazwa.toStdString());
        if (!warunek.isEmpty()) wynik += " WHERE " + warunek;
    }
    for (std::size_t i = 0; i < porzadek_.size(); ++i)
        wynik += (i == 0 ? " ORDER BY " : ", ") + nazwaSql(porzadek_[i].def().nazwa);
    if (zapis_ == Porzadek::Zapisu) wynik += " ORDER BY rowid";
    if (pierwszych_ > 0) wynik += " LIMIT " + QByteArray::number(pierwszych_);
    return wynik;
}

PrzygotowaneZapytanie::PrzygotowaneZapytanie(Polaczenie& polaczenie, const Zapytanie& zapytanie)
    : polaczenie_(&polaczenie), zapytanie_(zapytanie), miejsca_(zapytanie.tabela().kolumny.size(), -1),
      typyParametrow_(static_cast<std::size_t>(zapytanie.parametrow()), Typ::Short) {
    zapytanie_.sprawdz();
    for (std::size_t i = 0; i < zapytanie_.kolumny_.size(); ++i)
        miejsca_[static_cast<std::size_t>(zapytanie_.kolumny_[i].nr)] =
            kPierwszaKolumna + static_cast<int>(i);
    if (zapytanie_.zrodla_.empty()) return;
    instrukcja_.emplace(polaczenie, zapytanie_.sql().toStdString());
    auto stala = static_cast<int>(typyParametrow_.size());
    for (const auto& [kolumna, strona] : zapytanie_.warunek_.miejsca_) {
        if (const auto* p = std::get_if<Parametr>(&strona))
            typyParametrow_[static_cast<std::size_t>(p->nr)] = kolumna.def().typ;
        else
            wiazWartosc(*instrukcja_, stala++, std::get<Wartosc>(strona));
    }
}

void PrzygotowaneZapytanie::zacznij(std::size_t ileWartosci) {
    if (ileWartosci != typyParametrow_.size())
        throw Blad(QStringLiteral("Zapytanie do tabeli %1: podano wartości: %2, a potrzeba: %3.")
                       .arg(napis(zapytanie_.tabela().nazwa))
                       .arg(ileWartosci)
                       .arg(typyParametrow_.size()));
    if (instrukcja_) instrukcja_->od_nowa();
}

void PrzygotowaneZapytanie::wymagajRodzaju(int nr, RodzajWartosci oczekiwany) const {
    if (rodzajWartosci(typyParametrow_[static_cast<std::size_t>(nr)]) != oczekiwany)
        throw Blad(QStringLiteral("Zapytanie do tabeli %1: wartość nr %2 innego rodzaju niż kolumna.")
                       .arg(napis(zapytanie_.tabela().nazwa))
                       .arg(nr));
}

void PrzygotowaneZapytanie::wiaz(int nr, qint64 liczba) {
    wymagajRodzaju(nr, RodzajWartosci::Calkowita);
    if (instrukcja_) instrukcja_->wiaz(nr, liczba);
}

void PrzygotowaneZapytanie::wiaz(int nr, const QString& tekst) {
    wymagajRodzaju(nr, RodzajWartosci::Tekst);
    if (instrukcja_) instrukcja_->wiaz(nr, tekst);
}

void PrzygotowaneZapytanie::wiaz(int nr, QDate data) {
    wymagajRodzaju(nr, RodzajWartosci::Data);
    if (instrukcja_) wiazWartosc(*instrukcja_, nr, data);
}

WierszeZapytania::~WierszeZapytania() {
    if (z_->instrukcja_) z_->instrukcja_->od_nowa();
}

bool WierszeZapytania::nastepny() { return z_->instrukcja_ && z_->instrukcja_->wiersz(); }

int WierszeZapytania::miejsce(Kolumna k) const {
    const bool znana =
        k.tabela == z_->zapytanie_.wzor_ && static_cast<std::size_t>(k.nr) < z_->miejsca_.size();
    const int miejsce = znana ? z_->miejsca_[static_cast<std::size_t>(k.nr)] : -1;
    if (miejsce < 0) zleZapytanie(k, QStringLiteral("czytana kolumna nie należy do zapytania"));
    return miejsce;
}

std::optional<qint64> WierszeZapytania::slowoKolumny(Kolumna k) const {
    const int m = miejsce(k);
    const Instrukcja& i = *z_->instrukcja_;
    const int typ = i.typ(m);
    if (typ == SQLITE_NULL) return std::nullopt;
    const std::optional<qint64> wynik = slowo(i, m, k.def().typ, typ);
    if (!wynik) uszkodzona(k);
    return wynik;
}

void WierszeZapytania::uszkodzona(Kolumna k) const {
    const auto& zrodlo = z_->zapytanie_.zrodla_[static_cast<std::size_t>(z_->instrukcja_->liczba(kZrodlo))];
    zglosUszkodzenie(*z_->polaczenie_, *zrodlo.tabela,
                     zrodlo.nazwa.isEmpty() ? napis(zrodlo.tabela->nazwa) : zrodlo.nazwa, nrWiersza(),
                     k.def());
}

bool WierszeZapytania::jestNull(Kolumna k) const { return z_->instrukcja_->jestNull(miejsce(k)); }
Waluta WierszeZapytania::kwota(Kolumna k) const { return Waluta::zSurowej(slowoKolumny(k).value_or(0)); }
qint64 WierszeZapytania::liczba(Kolumna k) const { return slowoKolumny(k).value_or(0); }

double WierszeZapytania::rzeczywista(Kolumna k) const {
    return std::bit_cast<double>(slowoKolumny(k).value_or(0));
}

QDate WierszeZapytania::data(Kolumna k) const {
    const std::optional<qint64> dzien = slowoKolumny(k);
    return dzien ? QDate::fromJulianDay(*dzien) : QDate();
}

std::string_view WierszeZapytania::utf8(Kolumna k) const {
    const int m = miejsce(k), typ = z_->instrukcja_->typ(m);
    if (typ == SQLITE_NULL) return {};
    if (typ != SQLITE_TEXT) uszkodzona(k);
    return z_->instrukcja_->utf8(m);
}

QString WierszeZapytania::tekst(Kolumna k) const {
    const std::string_view t = utf8(k);
    return QString::fromUtf8(t.data(), static_cast<qsizetype>(t.size()));
}

qint64 WierszeZapytania::nrWiersza() const { return z_->instrukcja_->liczba(kNrWiersza); }

} // namespace tornel::store
