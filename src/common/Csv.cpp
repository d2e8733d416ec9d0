#include "common/Csv.h"
#include "common/Blad.h"
#include <QStringConverter>

namespace tornel::common {

namespace {

constexpr QChar kCudzyslow(u'"');
constexpr QChar kSrednik(u';');

bool koniecLinii(QChar znak) { return znak == QLatin1Char('\n') || znak == QLatin1Char('\r'); }

/// Walks the text once, field by field.
class CzytnikCsv {
public:
    explicit CzytnikCsv(const QString& tekst) : tekst_(tekst) {}

    [[nodiscard]] bool koniec() const { return pozycja_ >= tekst_.size(); }

    [[nodiscard]] WierszCsv wiersz() {
        WierszCsv wynik{linia_, {pole()}};
        while (!koniec() && tekst_[pozycja_] == kSrednik) {
            ++pozycja_;
            wynik.pola.append(pole());
        }
        przejdzLinie();
        return wynik;
    }

    /// Steps over one end of line ("\n", "\r\n" or "\r"); false when there is none here.
    bool przejdzLinie() {
        if (koniec() || !koniecLinii(tekst_[pozycja_])) return false;
        const bool cr = tekst_[pozycja_++] == QLatin1Char('\r');
        if (cr && !koniec() && tekst_[pozycja_] == QLatin1Char('\n')) ++pozycja_;
        ++linia_;
        return true;
    }

private:
    [[nodiscard]] bool koniecPola() const {
        return koniec() || tekst_[pozycja_] == kSrednik || koniecLinii(tekst_[pozycja_]);
    }

    [[nodiscard]] QString pole() {
        if (!koniec() && tekst_[pozycja_] == kCudzyslow) return poleWCudzyslowie();
        const qsizetype od = pozycja_;
        for (; !koniecPola(); ++pozycja_)
            if (tekst_[pozycja_] == kCudzyslow) odmow(linia_, QStringLiteral("cudzysłów w środku pola"));
        return tekst_.mid(od, pozycja_ - od);
    }

    [[nodiscard]] QString poleWCudzyslowie() {
        const int poczatek = linia_;
        QString wynik;
        for (++pozycja_; !koniec(); ++pozycja_) {
            const QChar znak = tekst_[pozycja_];
            if (znak == kCudzyslow) {
                if (pozycja_ + 1 < tekst_.size() && tekst_[pozycja_ + 1] == kCudzyslow) {
                    ++pozycja_;
                } else {
                    ++pozycja_;
                    if (!koniecPola()) odmow(linia_, QStringLiteral("znak za zamykającym cudzysłowem"));
                    return wynik;
                }
            }
            if (znak == QLatin1Char('\n')) ++linia_;
            wynik += znak;
        }
        odmow(poczatek, QStringLiteral("brak zamykającego cudzysłowu"));
    }

    [[noreturn]] static void odmow(int linia, const QString& powod) {
        throw Blad(QStringLiteral("Wiersz %1: %2.").arg(linia).arg(powod));
    }

    const QString& tekst_;
    qsizetype pozycja_ = 0;
    int linia_ = 1;
};

QString zUtf8(const QByteArray& utf8) {
    // Takes a byte order mark off; a sequence cut at the end of the file counts as an error.
    QStringDecoder dekoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString tekst = dekoder.decode(utf8);
    if (!dekoder.hasError()) return tekst;
    const qsizetype zly = tekst.indexOf(QChar::ReplacementCharacter);
    throw Blad(QStringLiteral("Wiersz %1: tekst nie jest zapisany w UTF-8.")
                   .arg(tekst.left(zly).count(QLatin1Char('\n')) + 1));
}

} // namespace

QList<WierszCsv> CzytajCsv(const QByteArray& utf8) {
    const QString tekst = zUtf8(utf8);
    CzytnikCsv czytnik(tekst);
    QList<WierszCsv> wynik;
    while (!czytnik.koniec())
        if (!czytnik.przejdzLinie()) wynik.append(czytnik.wiersz());
    return wynik;
}

QString PoleCsv(const QString& tekst) {
    // A byte order mark in front of the first field would be taken for the file's own.
    static const QString wymagajace = QStringLiteral(";\"\n\r\uFEFF");
    const auto wymaga = [](QChar znak) { return wymagajace.contains(znak); };
    if (std::none_of(tekst.begin(), tekst.end(), wymaga) &&
        (tekst.isEmpty() || (!tekst.front().isSpace() && !tekst.back().isSpace())))
        return tekst;
    return kCudzyslow + QString(tekst).replace(kCudzyslow, QStringLiteral("\"\"")) + kCudzyslow;
}

} // namespace tornel::common
