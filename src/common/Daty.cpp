#include "common/Daty.h"
#include <algorithm>
#include <array>
#include <QStringView>

namespace tornel::common {

namespace {

/// Years below this were never dates here: a year typed with two digits is a slip.
constexpr int kPierwszyRok = 100;
/// What the clerk may type.
constexpr int kPierwszyRokWpisany = 1900, kOstatniRokWpisany = 2100;

bool cyfra(QChar znak) { return znak >= QLatin1Char('0') && znak <= QLatin1Char('9'); }

bool sameCyfry(QStringView tekst) {
    return !tekst.isEmpty() && std::all_of(tekst.begin(), tekst.end(), cyfra);
}

bool rozdzielacz(QChar znak) {
    return znak == QLatin1Char('/') || znak == QLatin1Char('-') || znak == QLatin1Char('.');
}

std::optional<QDate> zCzesci(QStringView rok, QStringView mies, QStringView dzien) {
    if (!sameCyfry(rok) || !sameCyfry(mies) || !sameCyfry(dzien)) return {};
    const QDate data(rok.toInt(), mies.toInt(), dzien.toInt());
    if (!data.isValid() || data.year() < kPierwszyRok) return {};
    return data;
}

std::optional<QDate> zPozycji(QStringView dziesiec) {
    return zCzesci(dziesiec.mid(6, 4), dziesiec.mid(3, 2), dziesiec.mid(0, 2));
}

/// Small letters without their marks, as a hurried hand types them.
QString bezZnakow(const QString& tekst) {
    QString wynik = tekst.toLower().normalized(QString::NormalizationForm_D);
    wynik.removeIf([](QChar znak) { return znak.isMark(); });
    return wynik;
}

} // namespace

int DniWMiesiacu(int rok, int mies) {
    static constexpr std::array<int, 12> dni = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (mies < 1 || mies > 12) return 0;
    return mies == 2 && QDate::isLeapYear(rok) ? 29 : dni[static_cast<std::size_t>(mies - 1)];
}

QDate PierwszyDzien(int rok, int mies) { return {rok, mies, 1}; }

QDate OstatniDzien(int rok, int mies) { return {rok, mies, DniWMiesiacu(rok, mies)}; }

QString NazwaMiesiaca(int mies) {
    static const std::array<QString, 12> nazwy = {
        QStringLiteral("Styczeń"),     QStringLiteral("Luty"),     QStringLiteral("Marzec"),
        QStringLiteral("Kwiecień"),    QStringLiteral("Maj"),      QStringLiteral("Czerwiec"),
        QStringLiteral("Lipiec"),      QStringLiteral("Sierpień"), QStringLiteral("Wrzesień"),
        QStringLiteral("Październik"), QStringLiteral("Listopad"), QStringLiteral("Grudzień")};
    return mies >= 1 && mies <= 12 ? nazwy[static_cast<std::size_t>(mies - 1)] : QString();
}

QList<int> PasujaceMiesiace(const QString& tekst) {
    static constexpr std::array<QStringView, 12> dopelniacze = {
        u"stycznia", u"lutego",   u"marca",    u"kwietnia",     u"maja",      u"czerwca",
        u"lipca",    u"sierpnia", u"wrzesnia", u"pazdziernika", u"listopada", u"grudnia"};
    const QString szukany = bezZnakow(tekst.trimmed());
    QList<int> wynik;
    if (szukany.isEmpty()) return wynik;
    for (int m = 1; m <= 12; ++m)
        if (QString::number(m).startsWith(szukany) || FormatMiesiaca(m).startsWith(szukany) ||
            bezZnakow(NazwaMiesiaca(m)).startsWith(szukany) ||
            dopelniacze[static_cast<std::size_t>(m - 1)].startsWith(szukany))
            wynik.append(m);
    return wynik;
}

std::optional<int> CzytajMiesiac(const QString& tekst) {
    const QList<int> pasujace = PasujaceMiesiace(tekst);
    const QString numer = tekst.trimmed();
    for (const int m : pasujace)
        if (numer == QString::number(m) || numer == FormatMiesiaca(m)) return m;
    const bool slowo = !numer.isEmpty() && numer.front().isLetter();
    return slowo && pasujace.size() == 1 ? std::optional(pasujace.first()) : std::nullopt;
}

QString Nazwa_dnia(QDate data) {
    static const std::array<QString, 7> nazwy = {QStringLiteral("Poniedziałek"), QStringLiteral("Wtorek"),
                                                 QStringLiteral("Środa"),        QStringLiteral("Czwartek"),
                                                 QStringLiteral("Piątek"),       QStringLiteral("Sobota"),
                                                 QStringLiteral("Niedziela")};
    return data.isValid() ? nazwy[static_cast<std::size_t>(data.dayOfWeek() - 1)] : QString();
}

QString FormatDaty(QDate data) {
    if (!data.isValid()) return {};
    return QStringLiteral("%1-%2-%3")
        .arg(FormatMiesiaca(data.day()), FormatMiesiaca(data.month()), FormatRoku(data.year()));
}

std::optional<QDate> CzytajDate(const QString& tekst) {
    const QStringView t(tekst);
    if (t.size() != 10) return {};
    if (t[4] == QLatin1Char('-') && t[7] == QLatin1Char('-'))
        return zCzesci(t.mid(0, 4), t.mid(5, 2), t.mid(8, 2));
    if (!rozdzielacz(t[2]) || t[5] != t[2]) return {};
    return zPozycji(t);
}

QString FormatMiesiaca(int mies) { return QStringLiteral("%1").arg(mies, 2, 10, QLatin1Char('0')); }

QString FormatRoku(int rok) { return QStringLiteral("%1").arg(rok, 4, 10, QLatin1Char('0')); }

QString MaskaDaty(const QString& tekst) {
    QString wynik;
    QString czesc;
    int czesci = 1;
    for (const QChar znak : tekst) {
        if (!rozdzielacz(znak)) {
            czesc += znak;
            continue;
        }
        if (czesci == 3) break;
        if (sameCyfry(czesc)) wynik += czesc;
        wynik += znak;
        czesc.clear();
        ++czesci;
    }
    if (sameCyfry(czesc)) wynik += czesc;
    return wynik;
}

std::optional<QDate> CzytajWpisanaDate(const QString& tekst) {
    const QString t = tekst.trimmed().section(QLatin1Char(' '), 0, 0);
    std::optional<QDate> data;
    if (t.size() == 8 && sameCyfry(t)) {
        data = zCzesci(QStringView(t).mid(4), QStringView(t).mid(2, 2), QStringView(t).left(2));
    } else if (const auto znak = std::find_if(t.begin(), t.end(), rozdzielacz); znak != t.end()) {
        const QList<QStringView> czesci = QStringView(t).split(*znak);
        const bool odRoku = *znak == QLatin1Char('-') && czesci.first().size() == 4;
        // A year in front asks for all its zeros: "2001-07-1" may still become the fifteenth.
        const auto pasuje = [=](QStringView czesc) { return odRoku ? czesc.size() == 2 : czesc.size() <= 2; };
        if (czesci.size() != 3 || !pasuje(czesci[1]) || !pasuje(odRoku ? czesci[2] : czesci[0])) return {};
        data = odRoku ? zCzesci(czesci[0], czesci[1], czesci[2]) : zCzesci(czesci[2], czesci[1], czesci[0]);
    }
    if (!data || data->year() < kPierwszyRokWpisany || data->year() > kOstatniRokWpisany) return {};
    return data;
}

QString SprawdzDate(const QString& tekst) { return FormatDaty(CzytajWpisanaDate(tekst).value_or(QDate())); }

} // namespace tornel::common
