#include "payroll/lista/PytaniaListy.h"
#include "common/Rozmowa.h"
#include <array>

namespace tornel::payroll {

namespace {

struct OpisPytania {
    Pytanie pytanie;
    const char16_t* wiersza;
    const char16_t* serii; ///< null: a batch takes it as Yes without a word
    Pytanie zalezneOd = Pytanie::Ile;
};

constexpr OpisPytania kPytaniaListy[] = {
    {Pytanie::ZastapicWpisane, u"Kwoty składników wpisane ręcznie zostaną zastąpione. Czy przepisać ?",
     u"Na liście są kwoty składników wpisane ręcznie. Czy zastąpić je przy przepisywaniu ?"},
    {Pytanie::IloscZasilkow,
     u"Czy przenieść dane o ilościach zasiłków: rodzinnego, wychowawczego i pielęgnacyjnego ?",
     u"Czy przenosić dane o ilościach zasiłków rodzinnych, wychowawczych i pielęgnacyjnych ?"},
    {Pytanie::LiczycDni, u"Czy wyliczyć ilość przepracowanych dni dla pracownika ?",
     u"Czy wyliczać ilość przepracowanych dni dla pracowników ?"},
    {Pytanie::DniZKalendarza, u"Czy ilość dni wyliczyć z bazy dni wolnych pracownika ?",
     u"Czy ilość dni wyliczać z bazy dni wolnych pracowników ?", Pytanie::LiczycDni},
    {Pytanie::SzukacOgolnych,
     u"Brak dni w kalendarzu dla pracownika. Czy szukać dni w kalendarzu dni wolnych ogólnych ?", nullptr,
     Pytanie::DniZKalendarza},
    {Pytanie::PrzenosicNadgodziny, u"Czy przenieść kwoty z nadgodzin na listę płac ?",
     u"Czy przenosić kwoty z nadgodzin na listę płac ?"},
    {Pytanie::LiczycL4, u"Czy wyliczyć L4 dla pracownika ?", u"Czy wyliczać L4 dla pracowników ?"},
    {Pytanie::ObowiazekZKalendarza,
     u"Czy dni wynikające z obowiązku pracy liczyć z bazy dni wolnych pracownika ?",
     u"Czy dni wynikające z obowiązku pracy wyliczać z bazy dni wolnych pracowników ?", Pytanie::LiczycL4},
    {Pytanie::ZasadniczaPoL4, u"Czy przeliczyć płacę zasadniczą dla pracownika po L-4 ?",
     u"Czy przeliczać płacę zasadniczą dla pracowników po L-4 ?", Pytanie::LiczycL4},
    {Pytanie::PremiaPoL4, u"Czy przeliczyć premię procentową dla pracownika po L-4 ?",
     u"Czy przeliczać premię procentową dla pracowników po L-4 ?", Pytanie::LiczycL4},
    {Pytanie::LiczycUrlop, u"Czy wyliczyć urlop dla pracownika ?", u"Czy wyliczać urlop dla pracowników ?"},
    {Pytanie::UrlopZKalendarza, u"Czy urlop wyliczyć z dni wolnych pracownika ?",
     u"Czy urlop wyliczać z dni wolnych pracownika ?", Pytanie::LiczycUrlop},
    {Pytanie::JedenSkladnik,
     u"Uwaga. W miesiącu zarejestrowano kilka okresów urlopowych dla pracownika. Czy kwoty wyliczonoe "
     u"zapisać w jednym składniku ?",
     u"Uwaga. W miesiącu zarejestrowano kilka okresów urlopowych dla pracownika. Czy kwoty wyliczonoe "
     u"zapisywać w jednym składniku ?",
     Pytanie::LiczycUrlop},
    {Pytanie::SkladnikiPoUrlopie, u"Czy przeliczyć składniki uwzględniając urlop pracownika ?",
     u"Czy przeliczać składniki uwzględniając urlop pracowników ?", Pytanie::LiczycUrlop},
    {Pytanie::ZwiekszycPPE,
     u"Kwota odpisu w ramach PPE jest większa od średniej. Czy zwiększyć podstawę do ZUS o różnicę między "
     u"kwotą odpisu a średnią ?",
     nullptr},
    {Pytanie::PomniejszycZasilek, u"Czy pomniejszyć kwotę do wypłaty pracownika o zasiłek chorobowy ?",
     u"Czy pomniejszać kwotę do wypłaty pracownikom o zasiłek chorobowy ?", Pytanie::LiczycL4},
};
static_assert(std::size(kPytaniaListy) == static_cast<std::size_t>(Pytanie::Ile));

} // namespace

std::optional<Odpowiedzi> Zapytaj(Rozmowa& rozmowa, const QString& tytul, const ZbiorPytan& moga,
                                  Zakres zakres) {
    Odpowiedzi tak;
    QList<PytanieAkcji> pytania;
    QList<Pytanie> zadane;
    for (const OpisPytania& p : kPytaniaListy) {
        const char16_t* tekst = zakres == Zakres::Wiersz ? p.wiersza : p.serii;
        if (!tekst) {
            tak.dodaj(p.pytanie);
        } else if (moga.ma(p.pytanie)) {
            pytania.append({QString::fromUtf16(tekst), static_cast<int>(zadane.indexOf(p.zalezneOd))});
            zadane.append(p.pytanie);
        }
    }
    if (pytania.isEmpty()) return tak;
    const std::optional<QList<bool>> odpowiedzi = rozmowa.pytania(tytul, pytania);
    if (!odpowiedzi) return std::nullopt;
    for (qsizetype i = 0; i < zadane.size(); ++i) tak.dodaj(zadane[i], odpowiedzi->value(i));
    return tak;
}

} // namespace tornel::payroll
