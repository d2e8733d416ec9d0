#include "zus/WyborDokumentow.h"
#include <algorithm>

namespace tornel::zus {

namespace {

/// ZPA and ZFA stand before ZBA and ZAA here and behind them in a collection: deliberate.
constexpr std::array<KodKedu, kDokumentow> kKolejnoscSlowa{
    KodKedu::ZUA,  KodKedu::ZZA, KodKedu::ZIUA, KodKedu::ZCNA, KodKedu::ZCZA,
    KodKedu::ZWUA, KodKedu::ZPA, KodKedu::ZFA,  KodKedu::ZBA,  KodKedu::ZAA,
    KodKedu::RCA,  KodKedu::RNA, KodKedu::RZA,  KodKedu::RSA,  KodKedu::DRA,
};

int najwyzszaWartosc(KodKedu kod) {
    switch (dokumentKedu(kod).petla) {
    case Petla::Platnik:
        return 3;
    case Petla::Brak:
        return 0;
    default:
        return 1;
    }
}

} // namespace

void WyborDokumentow::ustaw(KodKedu kod, int wartosc) {
    wartosci_[static_cast<std::size_t>(kod)] = wartosc >= 1 && wartosc <= najwyzszaWartosc(kod) ? wartosc : 0;
}

bool WyborDokumentow::jakikolwiek() const {
    return std::ranges::any_of(wartosci_, [](int w) { return w != 0; });
}

bool WyborDokumentow::dlaPracownikow() const {
    return std::ranges::any_of(DokumentyKedu(), [this](const DokumentKedu& d) {
        return jest(d.kod) &&
               (d.petla == Petla::Pracownik || d.petla == Petla::Rodzina || d.petla == Petla::Raport);
    });
}

QString WyborDokumentow::UtworzSlowo() const {
    QString slowo;
    for (const KodKedu kod : kKolejnoscSlowa) slowo += QString::number((*this)[kod]);
    return slowo;
}

WyborDokumentow WyborDokumentow::zeSlowa(const QString& slowo) {
    WyborDokumentow wybor;
    for (std::size_t i = 0; i < kKolejnoscSlowa.size() && static_cast<qsizetype>(i) < slowo.size(); ++i) {
        const QChar znak = slowo.at(static_cast<qsizetype>(i));
        if (znak >= QLatin1Char('0') && znak <= QLatin1Char('9'))
            wybor.ustaw(kKolejnoscSlowa[i], znak.unicode() - u'0');
    }
    return wybor;
}

} // namespace tornel::zus
