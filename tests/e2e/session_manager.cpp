// A session manager for one desktop of the tests. It prints the address for SESSION_MANAGER and
// asks its latest client to save, on a line
//   "logout"      and to go when it has saved;
//   "quiet"       the same, without asking the player anything;
//   "checkpoint"  and no more;
//   "called off"  for a logout that another program then cancels.
// What comes of that it prints, a word a line: "asks" when the client wants to talk to the player,
// "refuses" when it cancels the logout, "agrees" when it has saved and is told to go, "saved" when
// it has saved and stays, "left" when it is gone; and "restart" before each word of the command
// that the client wants to be started by again.
#include <X11/ICE/ICElib.h>
#include <X11/SM/SMlib.h>
#include <algorithm>
#include <array>
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <poll.h>
#include <string>
#include <string_view>
#include <unistd.h>
#include <vector>

namespace {

SmsConn client = nullptr;
bool loggingOut = false;
bool calledOff = false; // another program will cancel the logout in hand

void Tell(std::string_view word)
{
    std::cout << word << std::endl;
}

// ---- What the client says ------------------------------------------------------------------

Status Register(SmsConn connection, SmPointer /*data*/, char *former)
{
    char *name = former != nullptr ? former : SmsGenerateClientID(connection);
    SmsRegisterClientReply(connection, name);
    std::free(name);
    client = connection;
    loggingOut = false; // what the client before was asked is none of this one's
    if (former == nullptr) {
        SmsSaveYourself(connection, SmSaveLocal, False, SmInteractStyleNone, False);
    }
    return 1;
}

void LetItAsk(SmsConn connection, SmPointer /*data*/, int /*kind*/)
{
    Tell("asks");
    SmsInteract(connection);
}

void HearTheAnswer(SmsConn connection, SmPointer /*data*/, Bool cancelled)
{
    if (cancelled != False) {
        loggingOut = false;
        Tell("refuses");
        SmsShutdownCancelled(connection);
    }
}

void LetItSaveMore(SmsConn connection, SmPointer /*data*/)
{
    SmsSaveYourselfPhase2(connection);
}

void HearThatItIsSaved(SmsConn connection, SmPointer /*data*/, Bool /*well*/)
{
    if (calledOff) {
        SmsShutdownCancelled(connection);
        Tell("saved");
    } else if (loggingOut) {
        Tell("agrees");
        SmsDie(connection);
    } else {
        SmsSaveComplete(connection);
        Tell("saved");
    }
}

void HearThatItGoes(SmsConn connection, SmPointer /*data*/, int count, char **reasons)
{
    SmFreeReasons(count, reasons);
    IceConn below = SmsGetIceConnection(connection);
    SmsCleanUp(connection);
    IceSetShutdownNegotiation(below, False);
    IceCloseConnection(below);
    client = nullptr;
}

// Requests and properties that this session does nothing with.
void IgnoreRequest(SmsConn /*connection*/, SmPointer /*data*/, int /*type*/, Bool /*shutdown*/,
                   int /*style*/, Bool /*fast*/, Bool /*everyone*/)
{
}

// How the client is to be started again.
void TellRestart(const SmProp &property)
{
    for (int k = 0; k < property.num_vals; ++k) {
        const SmPropValue &word = property.vals[k];
        Tell("restart " + std::string(static_cast<const char *>(word.value),
                                      static_cast<std::size_t>(word.length)));
    }
}

void HearProperties(SmsConn /*connection*/, SmPointer /*data*/, int count, SmProp **properties)
{
    for (int k = 0; k < count; ++k) {
        if (std::string_view(properties[k]->name) == SmRestartCommand) {
            TellRestart(*properties[k]);
        }
        SmFreeProperty(properties[k]);
    }
    std::free(properties);
}

void IgnoreNames(SmsConn /*connection*/, SmPointer /*data*/, int count, char **names)
{
    for (int k = 0; k < count; ++k) {
        std::free(names[k]);
    }
    std::free(names);
}

void TellNoProperties(SmsConn connection, SmPointer /*data*/)
{
    SmsReturnProperties(connection, 0, nullptr);
}

Status Greet(SmsConn /*connection*/, SmPointer /*data*/, unsigned long *wanted,
             SmsCallbacks *callbacks, char ** /*refusal*/)
{
    *wanted = SmsRegisterClientProcMask | SmsInteractRequestProcMask | SmsInteractDoneProcMask |
              SmsSaveYourselfRequestProcMask | SmsSaveYourselfP2RequestProcMask |
              SmsSaveYourselfDoneProcMask | SmsCloseConnectionProcMask | SmsSetPropertiesProcMask |
              SmsDeletePropertiesProcMask | SmsGetPropertiesProcMask;
    callbacks->register_client.callback = Register;
    callbacks->interact_request.callback = LetItAsk;
    callbacks->interact_done.callback = HearTheAnswer;
    callbacks->save_yourself_request.callback = IgnoreRequest;
    callbacks->save_yourself_phase2_request.callback = LetItSaveMore;
    callbacks->save_yourself_done.callback = HearThatItIsSaved;
    callbacks->close_connection.callback = HearThatItGoes;
    callbacks->set_properties.callback = HearProperties;
    callbacks->delete_properties.callback = IgnoreNames;
    callbacks->get_properties.callback = TellNoProperties;
    return 1;
}

// ---- The lines -----------------------------------------------------------------------------

// The home of a test is its own, and so is its session: whoever knows the address may come in.
Bool LetIn(char * /*host*/)
{
    return True;
}

void OnBrokenLine(IceConn /*connection*/)
{
}

std::vector<IceListenObj> Listen()
{
    std::array<char, 256> words{};
    std::string vendor = "tests";
    std::string release = "1";
    int count = 0;
    IceListenObj *objects = nullptr;
    if (SmsInitialize(vendor.data(), release.data(), Greet, nullptr, LetIn, words.size(),
                      words.data()) == 0 ||
        IceListenForConnections(&count, &objects, words.size(), words.data()) == 0) {
        std::cerr << words.data() << '\n';
        std::exit(1);
    }
    std::vector<IceListenObj> listeners(objects, objects + count);
    for (IceListenObj listener : listeners) {
        IceSetHostBasedAuthProc(listener, LetIn);
    }
    char *address = IceComposeNetworkIdList(count, objects);
    Tell(address);
    std::free(address);
    return listeners;
}

// Takes what has come on a line. False when the line is at its end.
bool Serve(IceConn line)
{
    switch (IceProcessMessages(line, nullptr, nullptr)) {
    case IceProcessMessagesSuccess:
        return true;
    case IceProcessMessagesIOError:
        IceSetShutdownNegotiation(line, False);
        IceCloseConnection(line);
        client = nullptr;
        break;
    case IceProcessMessagesConnectionClosed:
        break;
    }
    Tell("left");
    return false;
}

// Reads what the test wants. False when it wants nothing any more.
bool Obey()
{
    std::array<char, 64> words{};
    const ssize_t length = ::read(STDIN_FILENO, words.data(), words.size());
    if (length <= 0) {
        return false;
    }
    const std::string_view line(words.data(), static_cast<std::size_t>(length) - 1);
    if (client != nullptr) {
        loggingOut = line != "checkpoint";
        calledOff = line == "called off";
        const int style = line == "quiet" ? SmInteractStyleNone : SmInteractStyleAny;
        SmsSaveYourself(client, SmSaveBoth, loggingOut ? True : False, style, False);
    }
    return true;
}

} // namespace

int main()
{
    // A client that has saved may be gone before it is told to go.
    std::signal(SIGPIPE, SIG_IGN);
    IceSetIOErrorHandler(OnBrokenLine);
    const std::vector<IceListenObj> listeners = Listen();
    std::vector<IceConn> lines;
    while (true) {
        std::vector<pollfd> watched{{STDIN_FILENO, POLLIN, 0}};
        for (IceListenObj listener : listeners) {
            watched.push_back({IceGetListenConnectionNumber(listener), POLLIN, 0});
        }
        for (IceConn line : lines) {
            watched.push_back({IceConnectionNumber(line), POLLIN, 0});
        }
        ::poll(watched.data(), watched.size(), -1);
        if (watched[0].revents != 0 && !Obey()) {
            return 0;
        }
        const std::vector<IceConn> served = lines;
        for (std::size_t k = 0; k < served.size(); ++k) {
            if (watched[1 + listeners.size() + k].revents != 0 && !Serve(served[k])) {
                std::erase(lines, served[k]);
            }
        }
        for (std::size_t k = 0; k < listeners.size(); ++k) {
            IceAcceptStatus status = IceAcceptFailure;
            if (watched[1 + k].revents != 0) {
                if (IceConn line = IceAcceptConnection(listeners[k], &status); line != nullptr) {
                    lines.push_back(line);
                }
            }
        }
    }
}
