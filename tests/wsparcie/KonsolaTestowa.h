// The console run inside the test, each test on its own copy of the example firm.
#pragma once
#include "cli/Konsola.h"
#include "start/Przyklad.h"
#include "wsparcie/Przestrzen.h"
#include "wsparcie/RozmowaSkrypt.h"
#include <QBuffer>
#include <QFile>
#include <QTemporaryDir>

namespace tornel::testy {

class KonsolaTestowa : public testing::Test {
protected:
    struct Wynik {
        int status = 0;
        QString wyjscie;
        QString bledy;
    };

    /// January computed and blocked, February computed.
    static void SetUpTestSuite() {
        wzorzec_ = std::make_unique<QTemporaryDir>();
        UtworzPrzyklad(wzorzec_->filePath(QStringLiteral("Tornel.mdb")), 12, 2, wzorzec_->path());
    }
    static void TearDownTestSuite() { wzorzec_.reset(); }
    KonsolaTestowa() {
        EXPECT_TRUE(QFile::copy(wzorzec_->filePath(QStringLiteral("Tornel.mdb")), plik("Tornel.mdb")));
    }

    [[nodiscard]] QString plik(const char* nazwa) const { return folder_.filePath(QString::fromUtf8(nazwa)); }
    /// Writes a file of the test and gives its path.
    QString zapisz(const char* nazwa, const QByteArray& tresc) const {
        QFile cel(plik(nazwa));
        EXPECT_TRUE(cel.open(QIODevice::WriteOnly) && cel.write(tresc) == tresc.size());
        return cel.fileName();
    }
    [[nodiscard]] static QByteArray czytaj(const QString& sciezka) {
        QFile zrodlo(sciezka);
        EXPECT_TRUE(zrodlo.open(QIODevice::ReadOnly)) << sciezka.toStdString();
        return zrodlo.readAll();
    }

    Wynik uruchom(const QStringList& argumenty) const {
        QBuffer wyjscie, bledy;
        wyjscie.open(QIODevice::WriteOnly);
        bledy.open(QIODevice::WriteOnly);
        const int status = Konsola(argumenty, folder_.path(), wyjscie, bledy);
        return {status, QString::fromUtf8(wyjscie.data()), QString::fromUtf8(bledy.data())};
    }
    /// Words of a command line; they hold no blanks.
    Wynik uruchom(const char* wiersz) const {
        return uruchom(QString::fromUtf8(wiersz).split(QLatin1Char(' '), Qt::SkipEmptyParts));
    }
    /// A table as it stands, for comparing.
    [[nodiscard]] QString tabela(const char* nazwa) const {
        return uruchom({QStringLiteral("eksport"), QString::fromUtf8(nazwa)}).wyjscie;
    }

    QTemporaryDir folder_;

private:
    inline static std::unique_ptr<QTemporaryDir> wzorzec_;
};

} // namespace tornel::testy
