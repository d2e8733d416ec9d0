#include "tax/SeriaDeklaracji.h"
#include "common/Csv.h"
#include "common/Daty.h"
#include "common/Liczby.h"
#include "payroll/lista/KontrolaWierszy.h"
#include "payroll/miesiace/Miesiace.h"

namespace tornel::tax {

namespace {

QString tekstCsv(const Wartosc& wartosc) {
    if (const auto* kwota = std::get_if<Waluta>(&wartosc)) return FormatKwoty(*kwota);
    if (const auto* liczba = std::get_if<qint64>(&wartosc)) return QString::number(*liczba);
    if (const auto* dzien = std::get_if<QDate>(&wartosc)) return FormatDaty(*dzien);
    const auto* tekst = std::get_if<QString>(&wartosc);
    return tekst ? tekst->trimmed() : QString();
}

QByteArray liniaCsv(const QStringList& pola) {
    QStringList zapisane;
    for (const QString& pole : pola) zapisane.append(PoleCsv(pole));
    return zapisane.join(u';').toUtf8() + '\n';
}

} // namespace

SeriaDeklaracji::SeriaDeklaracji(Otoczenie& otoczenie, Deklaracja ktora, const OkresPodatkowy& okres,
                                 const QList<qint64>& osoby, QDate dzis)
    : o_(otoczenie), ktora_(ktora), okres_(okres), osoby_(osoby), dzis_(dzis),
      dane_(otoczenie, ktora, okres,
            osoby.size() == 1 ? std::optional(osoby.first()) : std::optional<qint64>()) {}

QList<RokMies> SeriaDeklaracji::brakujaceMiesiace() const {
    QList<RokMies> wynik;
    for (RokMies m = okres_.od; m <= okres_.dokad; m = m.plus(1))
        if (!JestMiesiac(o_.sesja, m, {"PLA", "PLB", "PLS"})) wynik.append(m);
    return wynik;
}

QHash<qint64, QStringList> SeriaDeklaracji::niepoliczone() const {
    QHash<qint64, QStringList> wynik;
    if (ktora_ == Deklaracja::Pit8B) return wynik; // contracts alone
    for (RokMies m = okres_.od; m <= okres_.dokad; m = m.plus(1)) {
        if (!JestMiesiac(o_.sesja, m, {"PLA", "PLB", "PLS"})) continue;
        for (const WierszDoUwagi& w : PrzejrzyjMiesiac(o_, m)) {
            if (!w.stan.niePoliczony) continue;
            QStringList& miesiace = wynik[w.prcId];
            if (!miesiace.contains(m.napis())) miesiace.append(m.napis());
        }
    }
    return wynik;
}

QList<PozycjaSerii> SeriaDeklaracji::pozycje() const {
    const QHash<qint64, QStringList> niepoliczone = this->niepoliczone();
    QList<PozycjaSerii> wynik;
    wynik.reserve(osoby_.size());
    for (const qint64 prcId : osoby_) {
        const WierszDeklaracji d = dane_.wypelnij(prcId, dzis_);
        PozycjaSerii p{prcId, dane_.podatnicy().nazwa(prcId), SumujZrodla(d), {}};
        if (d.tekst("numer_id").trimmed().isEmpty())
            p.uwagi.append(dane_.podatnicy().pesel(prcId).trimmed().isEmpty()
                               ? QStringLiteral("Nie ma NIP ani numeru PESEL.")
                               : QStringLiteral("Nie ma NIP."));
        if (d.tekst("us").trimmed().isEmpty()) p.uwagi.append(QStringLiteral("Nie ma urzędu skarbowego."));
        if (const auto miesiace = niepoliczone.constFind(prcId); miesiace != niepoliczone.constEnd())
            p.uwagi.append(
                QStringLiteral("Nie są policzone miesiące: %1.").arg(miesiace->join(QStringLiteral(", "))));
        wynik.append(p);
    }
    return wynik;
}

SeriaStron SeriaDeklaracji::strony() const {
    return {ktora_, ile(), [this](int nr) { return dane_.wypelnij(osoby_.at(nr), dzis_); }};
}

QByteArray SeriaDeklaracji::csv() const {
    QStringList naglowek{QStringLiteral("PRC_ID")};
    for (const KolumnaDef& k : OpisDeklaracji(ktora_).tabela->kolumny)
        naglowek.append(QString::fromLatin1(k.nazwa.data(), static_cast<qsizetype>(k.nazwa.size())));
    QByteArray wynik =
        liniaCsv(naglowek + QStringList{QStringLiteral("SPRZY"), QStringLiteral("SKUP"),
                                        QStringLiteral("SDOCHOD"), QStringLiteral("SPOB_ZAL")});
    for (const qint64 prcId : osoby_) {
        const WierszDeklaracji d = dane_.wypelnij(prcId, dzis_);
        QStringList pola{QString::number(prcId)};
        for (int nr = 0; nr < static_cast<int>(d.tabela().kolumny.size()); ++nr)
            pola.append(tekstCsv(d.wartosc(nr)));
        const SumyZrodel s = SumujZrodla(d);
        for (const Waluta suma : {s.SPRZY, s.SKUP, s.SDOCHOD, s.SPOB_ZAL}) pola.append(FormatKwoty(suma));
        wynik += liniaCsv(pola);
    }
    return wynik;
}

} // namespace tornel::tax
