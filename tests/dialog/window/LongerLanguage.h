#pragma once

#include "dialog/window/DialogWishes.h"

#include <QtCore/QTemporaryDir>
#include <QtCore/QTranslator>

/// While it lives, the program speaks one of its languages, and so do PPDs.
class InLanguage
{
public:
    ~InLanguage();
    void use(const QString &language);

private:
    QTranslator m_table;
    QByteArray m_localeBefore; ///< of the environment
    QByteArray m_processLocale;
};

/// A language that is 40 % longer than English, made of English: for every text of the dialog, of
/// the plug-in's bundle and of a PPD.
class LongerLanguage : private QTranslator
{
public:
    ~LongerLanguage() override;

    /// Speaks it while it lives, and names a bundle and a PPD that speak it too in the place of the
    /// wished ones.
    void use(DialogWishes &wishes);

    static QString longer(const QString &text);

    QString translate(const char *context, const char *source, const char *disambiguation,
                      int number) const override;
    bool isEmpty() const override { return false; }

private:
    QString lengthenBundle(const QString &bundle);
    QString lengthenPPD(const QString &ppd);

    QTemporaryDir m_folder;
};
