#include "store/PakietZmian.h"
#include "common/Blad.h"
#include "store/Komorki.h"
#include "store/Schemat.h"
#include <algorithm>
#include <bit>
#include <cstring>

namespace tornel::store {

namespace {

constexpr char kWersjaPakietu = 1;

// The first byte of a value. From `kMale` on it is a small whole number itself.
enum Znak : unsigned char { kNic, kPusty, kLiczba, kUlamek, kTekst, kDzien, kTajne, kMale = 16 };
constexpr int kNajwiekszaMala = 255 - kMale;

constexpr std::uint64_t zygzak(qint64 n) {
    return (static_cast<std::uint64_t>(n) << 1) ^ static_cast<std::uint64_t>(n >> 63);
}
constexpr qint64 odZygzaka(std::uint64_t n) {
    return static_cast<qint64>(n >> 1) ^ -static_cast<qint64>(n & 1);
}

/// Tells a table of today's schema from one of another.
std::uint32_t odcisk(const TabelaDef& tabela) {
    std::uint32_t wynik = 2'166'136'261U;
    for (const KolumnaDef& k : tabela.kolumny) {
        for (const char znak : k.nazwa) wynik = (wynik ^ static_cast<unsigned char>(znak)) * 16'777'619U;
        wynik = (wynik ^ static_cast<std::uint32_t>(k.typ)) * 16'777'619U;
    }
    return wynik;
}

/// Reads no byte past the end and believes no count that the bytes cannot hold.
class Czytelnik {
public:
    explicit Czytelnik(std::string_view dane) : dane_(dane) {}
    [[nodiscard]] bool koniec() const { return miejsce_ == dane_.size(); }

    unsigned char bajt() { return static_cast<unsigned char>(kawalek(1)[0]); }
    std::uint64_t liczba() {
        std::uint64_t wynik = 0;
        for (int przesuniecie = 0; przesuniecie < 64; przesuniecie += 7) {
            const unsigned char b = bajt();
            wynik |= static_cast<std::uint64_t>(b & 0x7f) << przesuniecie;
            if ((b & 0x80) == 0) return wynik;
        }
        uszkodzony();
    }
    std::size_t ile() {
        const std::uint64_t n = liczba();
        if (n > dane_.size() - miejsce_) uszkodzony();
        return static_cast<std::size_t>(n);
    }
    std::string_view napis() { return kawalek(ile()); }

    WartoscPliku wartosc() {
        const unsigned char znak = bajt();
        if (znak >= kMale) return static_cast<qint64>(znak - kMale);
        switch (znak) {
        case kNic:
            return {};
        case kPusty:
            return QByteArray("");
        case kLiczba:
            return odZygzaka(liczba());
        case kUlamek: {
            std::uint64_t bity = 0;
            std::memcpy(&bity, kawalek(sizeof bity).data(), sizeof bity);
            return std::bit_cast<double>(bity);
        }
        case kTekst: {
            const std::string_view t = napis();
            return QByteArray(t.data(), static_cast<qsizetype>(t.size()));
        }
        case kDzien: {
            const std::uint64_t nr = liczba();
            if (nr > 5'373'484) uszkodzony(); // 31 December 9999
            const TekstDnia tekst(static_cast<qint64>(nr));
            const std::string_view t = tekst;
            return QByteArray(t.data(), static_cast<qsizetype>(t.size()));
        }
        case kTajne:
            return WartoscTajna{};
        default:
            uszkodzony();
        }
    }
    [[noreturn]] static void uszkodzony() {
        throw Blad(QStringLiteral("Wpis dziennika zmian jest uszkodzony."));
    }

private:
    std::string_view kawalek(std::size_t ile) {
        if (ile > dane_.size() - miejsce_) uszkodzony();
        const std::string_view wynik = dane_.substr(miejsce_, ile);
        miejsce_ += ile;
        return wynik;
    }
    std::string_view dane_;
    std::size_t miejsce_ = 0;
};

QString tekstUtf8(std::string_view t) {
    return QString::fromUtf8(t.data(), static_cast<qsizetype>(t.size()));
}

void czytajNaglowekPakietu(Czytelnik& c, PakietZmian& pakiet) {
    if (c.bajt() != static_cast<unsigned char>(kWersjaPakietu)) Czytelnik::uszkodzony();
    pakiet.tabela = tekstUtf8(c.napis());
    const std::size_t podane = c.ile();
    for (std::size_t i = 0; i < podane; ++i) pakiet.kolumny += tekstUtf8(c.napis());
    if (podane > 0) return;
    const std::uint64_t kolumn = c.liczba(), slad = c.liczba();
    constexpr std::uint64_t najwiecejKolumn = 2000; // the engine's own limit
    if (kolumn > najwiecejKolumn) Czytelnik::uszkodzony();
    const TabelaDef* def = schemat::szablonTabeli(pakiet.tabela.toStdString());
    pakiet.znaneKolumny = def && def->kolumny.size() == kolumn && odcisk(*def) == slad;
    if (pakiet.znaneKolumny) pakiet.szablon = def;
    for (std::uint64_t i = 0; i < kolumn; ++i)
        pakiet.kolumny +=
            pakiet.znaneKolumny ? napis(def->kolumny[i].nazwa) : QStringLiteral("kolumna %1").arg(i + 1);
}

int numerKolumny(Czytelnik& c, const PakietZmian& pakiet) {
    const std::uint64_t nr = c.liczba();
    if (nr >= static_cast<std::uint64_t>(pakiet.kolumny.size())) Czytelnik::uszkodzony();
    return static_cast<int>(nr);
}

void czytajZmiane(Czytelnik& c, const PakietZmian& pakiet, ZmianaWiersza& z) {
    switch (z.rodzaj) {
    case RodzajZmiany::Nowy:
    case RodzajZmiany::Usuniety:
        z.kolumny.resize(static_cast<std::size_t>(pakiet.kolumny.size()));
        for (std::size_t i = 0; i < z.kolumny.size(); ++i) {
            z.kolumny[i].nr = static_cast<int>(i);
            (z.rodzaj == RodzajZmiany::Nowy ? z.kolumny[i].nowa : z.kolumny[i].stara) = c.wartosc();
        }
        return;
    case RodzajZmiany::Zmieniony:
        z.kolumny.resize(c.ile());
        for (ZmianaKolumny& k : z.kolumny) {
            k.nr = numerKolumny(c, pakiet);
            k.stara = c.wartosc();
            k.nowa = c.wartosc();
        }
        z.klucz.resize(c.ile());
        for (ZmianaKolumny& k : z.klucz) {
            k.nr = numerKolumny(c, pakiet);
            k.nowa = c.wartosc();
        }
        return;
    case RodzajZmiany::UtworzonaTabela:
    case RodzajZmiany::UsunietaTabela:
        for (std::size_t n = c.ile(); n > 0; --n) z.polecenia += tekstUtf8(c.napis());
        return;
    }
    Czytelnik::uszkodzony();
}

} // namespace

int kolumnaPracownika(const TabelaDef& tabela) {
    const int zPodkresleniem = tabela.numer("PRC_ID");
    return zPodkresleniem >= 0 ? zPodkresleniem : tabela.numer("PrcId"); // the calendars write it so
}

bool rownaWPliku(const WartoscPliku& a, const WartoscPliku& b) {
    const auto* n = std::get_if<qint64>(&a);
    const auto* r = std::get_if<double>(&b);
    if (n && r) return static_cast<double>(*n) == *r;
    if (std::holds_alternative<double>(a) && std::holds_alternative<qint64>(b)) return rownaWPliku(b, a);
    return a == b;
}

PakietZmian CzytajPakiet(const QByteArray& bajty) {
    Czytelnik c({bajty.constData(), static_cast<std::size_t>(bajty.size())});
    PakietZmian pakiet;
    czytajNaglowekPakietu(c, pakiet);
    qint64 nrWiersza = 0;
    while (!c.koniec()) {
        ZmianaWiersza& z = pakiet.zmiany.emplace_back();
        z.rodzaj = static_cast<RodzajZmiany>(c.bajt());
        // Differences of numbers from a damaged packet may leave the range; they only have to stay defined.
        const std::uint64_t suma =
            static_cast<std::uint64_t>(nrWiersza) + static_cast<std::uint64_t>(odZygzaka(c.liczba()));
        nrWiersza = static_cast<qint64>(suma);
        z.nrWiersza = nrWiersza;
        czytajZmiane(c, pakiet, z);
    }
    return pakiet;
}

PisarzPakietu::PisarzPakietu(QString tabela, const TabelaDef* szablon, const QStringList& kolumny)
    : tabela_(std::move(tabela)), szablon_(kolumny.isEmpty() ? szablon : nullptr) {
    dane_ += kWersjaPakietu;
    napis(tabela_.toStdString());
    ile(static_cast<std::uint64_t>(kolumny.size()));
    for (const QString& k : kolumny) napis(k.toStdString());
    if (szablon_) {
        ile(szablon_->kolumny.size());
        ile(odcisk(*szablon_));
        osoba_ = kolumnaPracownika(*szablon_);
        for (const std::string_view k : szablon_->klucz) klucz_.push_back(szablon_->numer(k));
        if (osoba_ >= 0 && std::ranges::find(klucz_, osoba_) == klucz_.end()) klucz_.push_back(osoba_);
    }
    naglowek_ = dane_.size();
}

void PisarzPakietu::zmiana(RodzajZmiany rodzaj, qint64 nrWiersza) {
    dane_ += static_cast<char>(rodzaj);
    ile(zygzak(nrWiersza - poprzedni_));
    poprzedni_ = nrWiersza;
}

void PisarzPakietu::ile(std::uint64_t liczba) {
    for (; liczba > 0x7f; liczba >>= 7) dane_ += static_cast<char>(0x80 | (liczba & 0x7f));
    dane_ += static_cast<char>(liczba);
}

void PisarzPakietu::liczba(qint64 liczba) {
    if (liczba >= 0 && liczba <= kNajwiekszaMala) {
        dane_ += static_cast<char>(kMale + liczba);
        return;
    }
    dane_ += static_cast<char>(kLiczba);
    ile(zygzak(liczba));
}

void PisarzPakietu::rzeczywista(double liczba) {
    dane_ += static_cast<char>(kUlamek);
    char bity[sizeof liczba];
    std::memcpy(bity, &liczba, sizeof liczba);
    dane_.append(bity, sizeof bity);
}

void PisarzPakietu::tekst(std::string_view utf8) {
    if (utf8.empty()) {
        dane_ += static_cast<char>(kPusty);
        return;
    }
    dane_ += static_cast<char>(kTekst);
    napis(utf8);
}

void PisarzPakietu::dzien(qint64 nrDnia) {
    dane_ += static_cast<char>(kDzien);
    ile(static_cast<std::uint64_t>(nrDnia));
}

void PisarzPakietu::tajna() { dane_ += static_cast<char>(kTajne); }

void PisarzPakietu::polecenia(const std::vector<std::string>& polecenia) {
    ile(polecenia.size());
    for (const std::string& p : polecenia) napis(p);
}

void PisarzPakietu::napis(std::string_view utf8) {
    ile(utf8.size());
    dane_ += utf8;
}

QByteArray PisarzPakietu::wydaj() {
    QByteArray wynik(dane_.data(), static_cast<qsizetype>(dane_.size()));
    dane_.resize(naglowek_);
    poprzedni_ = 0;
    return wynik;
}

} // namespace tornel::store
