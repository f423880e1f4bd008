#pragma once

#include "dialog/job/PrinterFeatures.h"

#include <QtWidgets/QWidget>

/// The control of one feature of the printer. It shows what is marked in the PPD; what a user
/// chooses with it is told as a value that can be marked (PPDMark).
class FeatureField : public QWidget
{
    Q_OBJECT

public:
    /// The control for the feature's kind. The PPD must outlive it.
    static FeatureField *make(ppd_file_t *ppd, const PrinterFeature &feature, QWidget *parent);

    const PrinterFeature &feature() const { return m_feature; }

    /// Shows what is marked, and tells nobody.
    virtual void showMarked() = 0;

    /// Whether all that stands in the control can be used.
    virtual bool isAcceptable() const { return true; }

    /// Whether the control says by itself what it is for, so that no label need.
    virtual bool hasOwnTitle() const { return false; }

Q_SIGNALS:
    /// The user has chosen the value; it is not marked yet.
    void chosen(const QString &value);

    /// The user has entered something that cannot be used.
    void judged();

protected:
    FeatureField(ppd_file_t *ppd, const PrinterFeature &feature, QWidget *parent);

    ppd_file_t *ppd() const { return m_ppd; }

    /// Puts the control into the field, with a name for scripts of tests and for assistive
    /// technology.
    void addControl(QWidget *control);

private:
    ppd_file_t *m_ppd;
    const PrinterFeature m_feature;
};
