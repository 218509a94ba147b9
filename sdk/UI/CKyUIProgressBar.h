#pragma once

#include "UI/CKyUIBaseView.h"

#include <QtCore/QString>

/// A horizontal bar that shows how far a task has come, with a text such as
/// "40%" on it, or a moving busy indicator while the length of the task is
/// unknown.
///
/// setProgress() takes what a download reports, so one line ties a bar to a
/// reply:
///
/// \code
/// reply->downloadProgress().connect([bar](long long received, long long total) { bar->setProgress(received,
/// total); }); \endcode
///
/// \image html numbers-and-layout.png "Progress bars, among the other controls of the page"
class COMMONUI_EXPORT CKyUIProgressBar : public CKyUIBaseView
{
public:
    /// A bar at 0 of 0 to 100, showing "0%".
    CKyUIProgressBar();
    ~CKyUIProgressBar() override;

    /// Sets both bounds; a maximum below the minimum is taken as the
    /// minimum. A value outside the new range is taken to the minimum. Ends
    /// the busy mode unless both bounds are 0.
    void setRange(int minimum, int maximum);
    /// The lower bound; 0 unless set.
    int minimum() const;
    /// The upper bound; 100 unless set.
    int maximum() const;

    /// Sets the value; one outside the range is ignored, as by the widget.
    void setValue(int value);
    /// The value; the minimum unless set.
    int value() const;
    /// Goes back to the start: the value becomes the minimum and the text
    /// shows nothing until the next setValue().
    void reset();

    /// Shows the bytes received of the bytes expected: the range becomes 0 to
    /// @p total and the value @p received (both scaled down together when
    /// they exceed an int). A total that is not known (-1, or 0) switches to
    /// the busy mode; the signature is that of
    /// CKyNANetworkReply::downloadProgress() and uploadProgress().
    void setProgress(long long received, long long total);

    /// Shows a moving indicator instead of a value (true), or the value
    /// again (false); the range and value are kept meanwhile.
    void setBusy(bool busy);
    /// Whether the busy indicator shows.
    bool isBusy() const;

    /// The text on the bar: "%p" stands for the percentage, "%v" for the
    /// value, "%m" for the number of steps; "%p%" unless set.
    void setFormat(const QString& format);
    /// The format; "%p%" unless set.
    QString format() const;
    /// Shows (true, the default) or hides the text.
    void setTextVisible(bool visible);
    /// Whether the text shows.
    bool isTextVisible() const;
};
