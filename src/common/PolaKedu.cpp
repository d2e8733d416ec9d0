#include "common/PolaKedu.h"
#include "common/Blad.h"
#include <algorithm>
#include <array>
#include <iconv.h>
#include <QHash>

namespace tornel::common {

namespace {

/// The byte of every character that the code page has, read once from the C library's tables.
QHash<QChar, char> bajtyZnakow() {
    const iconv_t przejscie = iconv_open("UTF-16LE", "CP1250");
    if (przejscie == reinterpret_cast<iconv_t>(-1)) // NOLINT(performance-no-int-to-ptr)
        throw Blad(QStringLiteral("System nie zna strony kodowej Windows-1250."));
    QHash<QChar, char> wynik;
    for (int bajt = 0; bajt < 256; ++bajt) {
        char wejscie = static_cast<char>(bajt), wyjscie[4] = {};
        char *we = &wejscie, *wy = wyjscie;
        std::size_t zostaje = 1, miejsca = sizeof wyjscie;
        if (iconv(przejscie, &we, &zostaje, &wy, &miejsca) != static_cast<std::size_t>(-1) && miejsca == 2)
            wynik.insert(QChar(static_cast<uchar>(wyjscie[0]) | static_cast<uchar>(wyjscie[1]) << 8),
                         static_cast<char>(bajt));
    }
    iconv_close(przejscie);
    return wynik;
}

} // namespace

QString KeduDataOdwrotna(QDate data) {
    return data.isValid() ? data.toString(QStringLiteral("yyyyMMdd")) : QString(8, QLatin1Char(' '));
}

QString KeduKwota(Waluta kwota, int szer) {
    const std::int64_t setne = kwota.surowa() / 100 - (kwota.surowa() % 100 < 0 ? 1 : 0);
    return QString::number(setne).rightJustified(szer, QLatin1Char('0')).right(szer);
}

QByteArray windows1250(const QString& tekst) {
    static const QHash<QChar, char> bajty = bajtyZnakow();
    QByteArray wynik;
    wynik.reserve(tekst.size());
    for (qsizetype i = 0; i < tekst.size(); ++i) {
        if (tekst[i].unicode() < 0x80) { // most of any text
            wynik += static_cast<char>(tekst[i].unicode());
            continue;
        }
        if (tekst[i].isHighSurrogate() && i + 1 < tekst.size()) ++i; // one character, one mark
        wynik += bajty.value(tekst[i], '?');
    }
    return wynik;
}

QString zWindows1250(QByteArrayView bajty) {
    static const std::array<QChar, 256> znaki = [] {
        std::array<QChar, 256> wynik;
        wynik.fill(QChar::ReplacementCharacter);
        const QHash<QChar, char> bajtow = bajtyZnakow();
        for (auto i = bajtow.cbegin(); i != bajtow.cend(); ++i)
            wynik[static_cast<uchar>(i.value())] = i.key();
        return wynik;
    }();
    QString wynik(bajty.size(), Qt::Uninitialized);
    std::ranges::transform(bajty, wynik.begin(), [](char b) { return znaki[static_cast<uchar>(b)]; });
    return wynik;
}

} // namespace tornel::common
