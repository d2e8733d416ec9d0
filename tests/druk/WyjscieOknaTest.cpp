// Files of prints on a disk without room.
#include "common/Blad.h"
#include "common/Pliki.h"
#include "druk/Wyjscie.h"
#include "wsparcie/Przestrzen.h"
#include <csignal>
#include <gtest/gtest.h>
#include <QDir>
#include <QTemporaryDir>
#include <sys/resource.h>

namespace tornel::testy {

namespace {

using namespace Qt::StringLiterals;

/// As long as it lives, no file of this program gets longer.
class NajdluzszyPlik {
public:
    explicit NajdluzszyPlik(rlim_t bajtow) {
        sygnal_ = signal(SIGXFSZ, SIG_IGN);
        EXPECT_EQ(getrlimit(RLIMIT_FSIZE, &dawny_), 0);
        const rlimit nowy{bajtow, dawny_.rlim_max};
        EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &nowy), 0);
    }
    ~NajdluzszyPlik() {
        setrlimit(RLIMIT_FSIZE, &dawny_);
        signal(SIGXFSZ, sygnal_);
    }
    NajdluzszyPlik(const NajdluzszyPlik&) = delete;
    NajdluzszyPlik& operator=(const NajdluzszyPlik&) = delete;

private:
    rlimit dawny_{};
    void (*sygnal_)(int) = nullptr;
};

TEST(Wyjscie, ADiskWithoutRoomLeavesTheOldDocument) {
    QTemporaryDir folder;
    const QString pdf = folder.filePath(u"x.pdf"_s);
    ZapiszPlik(pdf, "stary");
    OpisWydruku opis{.nazwa = u"x"_s, .tytul = u"X"_s};
    opis.arkusze = {
        {{.rola = Rola::Wiersz,
          .wys = 200,
          .elementy = {{.rodzaj = Element::Rodzaj::Pole, .miejsce = {0, 0, 180, 5}, .pole = 0}}}}};
    const Uklad uklad(opis, std::make_shared<WierszeWPamieci>(
                                QList<QList<Wartosc>>(50, {Wartosc(u"zażółć gęślą jaźń"_s)})));
    {
        const NajdluzszyPlik limit(4096);
        EXPECT_THROW((void)ZapiszPdf(uklad, pdf), Blad);
    }
    EXPECT_EQ(CzytajPlik(pdf), "stary");
    EXPECT_TRUE(ZapiszPdf(uklad, pdf));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{u"x.pdf"_s});
}

} // namespace

} // namespace tornel::testy
