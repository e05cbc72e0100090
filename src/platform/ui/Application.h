#pragma once

#include <QApplication>
#include <functional>
#include <memory>

// What an application asks and tells the object that runs it.
class ApplicationDelegate {
  public:
    // Answers to a request to quit.
    static constexpr int terminateCancel = 0;
    static constexpr int terminateNow = 1;

    virtual ~ApplicationDelegate() = default;
    // The interface is to be loaded; the event loop does not run yet.
    virtual void awakeFromNib() = 0;
    // The event loop runs.
    virtual void applicationDidFinishLaunching() = 0;
    // The user has started the application again. True when it shall do what is usual then.
    virtual bool applicationShouldHandleReopen(bool hasVisibleWindows) = 0;
    // The user, or the end of the session, asks the application to quit.
    virtual int applicationShouldTerminate() = 0;
};

// The application object: one instance a user, alive without windows; its delegate may refuse to
// quit.
class Application : public QApplication {
    Q_OBJECT
  public:
    using MakeDelegate = std::function<std::shared_ptr<ApplicationDelegate>()>;

    Application(int &argc, char **argv);

    // Runs the application with its texts and delegate; if it runs already, notifies that instance.
    // Result: the exit status, 0 unless the delegate could not be made, or the instance does not
    // answer.
    static int main(int argc, char **argv, const MakeDelegate &makeDelegate);

    // Quits when the delegate agrees. False when not, or while a modal window waits.
    static bool terminate();

    // Who is asked and told; not owned. A null pointer: quitting is always granted.
    void setDelegate(ApplicationDelegate *delegate) { m_delegate = delegate; }

    // Tells the delegate that the application was started once more.
    void reopen();

  protected:
    // The desktop's own request to quit asks as terminate() does.
    bool event(QEvent *event) override;

  private:
    bool mayTerminate();

    ApplicationDelegate *m_delegate = nullptr;
};
