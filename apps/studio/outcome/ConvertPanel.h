#pragma once

#include "ConversionJob.h"
#include "Outcome.h"
#include "OutputHabits.h"
#include "apps/host/convert/PictureFit.h"

#include <QStringList>
#include <QWidget>

class QComboBox;
class QLabel;
class QPushButton;

namespace Vexlor::Studio
{

class ConversionStatus;

/// What can be converted: a source, and what comes of it in a preset.
struct ConversionOffer
{
    QString source;
    std::shared_ptr<const Outcome> outcome;
    std::shared_ptr<IVXFormatPreset> preset;
};

/// Makes the output: how its picture fits, how large it becomes, a button, and how far it is.
class ConvertPanel final : public QWidget
{
    Q_OBJECT

public:
    explicit ConvertPanel(QWidget* parent = nullptr);

    /// What the button will convert; without an outcome it is disabled. What runs goes on as it began.
    void Offer(const ConversionOffer& offer);
    /// What becomes of a picture whose shape is not the frame's.
    Tool::PictureFitting Fitting() const;

    OutputHabits Habits() const;
    void SetHabits(const OutputHabits& habits);

    /// Asks for the output's file in a dialog that does not hold up the program, and converts into it.
    void AskForOutput();
    /// Converts into the file of that path; one that is there is replaced when the user says so.
    void ConvertTo(const QString& path);
    /// True while it converts.
    bool IsConverting() const { return m_job.IsRunning(); }

signals:
    /// Another way for pictures to fit was chosen.
    void FittingChanged();
    /// There is no output to ask for; why.
    void Refused(const QString& reason);
    /// A conversion has begun.
    void ConversionStarted();
    /// A conversion with that preset, as it was when it began, went well.
    void ConversionDone(const std::shared_ptr<Vexlor::IVXFormatPreset>& preset,
                        const std::shared_ptr<Vexlor::IVXFormatPreset>& asItWas);

private:
    void Lay();
    void ConnectStatus();
    void Start(const QString& path, bool overwrites);
    void Cancel();
    void End(const ConversionEnd& end);
    void UpdateButton();
    QString Reason() const;
    QString SizeText() const;

    ConversionOffer m_offer;
    ConversionOffer m_running;
    std::shared_ptr<IVXFormatPreset> m_asItWas; ///< the preset of what runs
    QString m_wanted;                           ///< a file that is there, while it is asked what to do
    QString m_folder;                           ///< of the last output
    QStringList m_changes;                      ///< what gave way in what runs
    QLabel* m_fitLabel;
    QComboBox* m_fit;
    QLabel* m_size;
    QPushButton* m_convert;
    ConversionStatus* m_status;
    ConversionJob m_job;
};

} // namespace Vexlor::Studio
