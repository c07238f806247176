// SPDX-License-Identifier: MIT
// server_keeper BIN PARENT: makes a PostgreSQL server in a new folder within PARENT, with the programs in
// BIN, and keeps it running as long as its standard input is open. Then it stops the server and removes the
// folder.
//
// It reads lines: "stop" (as an administrator does), "crash" (as when the program dies) and "start". It
// answers each with a line: "stopped", "ready" or "failed". Its first lines are the server's folder and
// "ready" or "failed".

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <grp.h>
#include <initializer_list>
#include <poll.h>
#include <pwd.h>
#include <string>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr int LongestStart = 60000; // milliseconds, also on a busy machine
constexpr int LongestStop = 10000;

using Arguments = std::vector<std::string>;

struct Keeper {
    std::string programs;
    std::string folder;
    pid_t server = 0;

    std::string Data() const { return folder + "/data"; }
    std::string Log() const { return folder + "/log"; }
};

volatile std::sig_atomic_t wasAsked = 0; // to end, by a signal

void NoteSignal(int)
{
    wasAsked = 1;
}

// True when standard input has something to read, or its end.
bool HasInput(int milliseconds)
{
    pollfd input{STDIN_FILENO, POLLIN, 0};
    return poll(&input, 1, milliseconds) > 0;
}

void Say(const char* line)
{
    std::printf("%s\n", line);
    std::fflush(stdout);
}

// PostgreSQL refuses to run as root.
const passwd* OtherUser()
{
    return geteuid() == 0 ? getpwnam("nobody") : nullptr;
}

bool BecomeOtherUser()
{
    const passwd* user = OtherUser();
    return !user || (setgroups(0, nullptr) == 0 && setgid(user->pw_gid) == 0 && setuid(user->pw_uid) == 0);
}

// In the child: never returns. The server ends with its keeper, whatever ends that.
[[noreturn]] void Become(const Keeper& keeper, const Arguments& arguments, pid_t parent)
{
    std::vector<char*> pointers;
    pointers.reserve(arguments.size() + 1);
    for (const std::string& argument : arguments)
        pointers.push_back(const_cast<char*>(argument.c_str()));
    pointers.push_back(nullptr);
    // The change of the user takes back what prctl set, so it comes first.
    const bool isReady = BecomeOtherUser() && prctl(PR_SET_PDEATHSIG, SIGQUIT) == 0 && getppid() == parent
        && chdir(keeper.folder.c_str()) == 0 && std::freopen("/dev/null", "r", stdin)
        && std::freopen(keeper.Log().c_str(), "a", stdout) && dup2(STDOUT_FILENO, STDERR_FILENO) >= 0;
    if (isReady)
        execv(pointers.front(), pointers.data());
    _exit(127);
}

pid_t Start(const Keeper& keeper, const Arguments& arguments)
{
    const pid_t parent = getpid();
    const pid_t child = fork();
    if (child == 0)
        Become(keeper, arguments, parent);
    return child;
}

bool MakeFolder(Keeper& keeper, const std::string& parent)
{
    keeper.folder = parent + "/orvane-server-XXXXXX";
    if (!mkdtemp(keeper.folder.data()))
        return false;
    const passwd* user = OtherUser();
    return !user || chown(keeper.folder.c_str(), user->pw_uid, user->pw_gid) == 0;
}

// In the file of settings, which a test may change.
bool CloseNetwork(const Keeper& keeper)
{
    std::ofstream settings(keeper.Data() + "/postgresql.conf", std::ios::app);
    settings << "listen_addresses = ''\n";
    return bool(settings.flush());
}

bool MakeCluster(const Keeper& keeper)
{
    const pid_t maker = Start(
        keeper,
        {keeper.programs + "/initdb", "--pgdata=" + keeper.Data(), "--auth=trust", "--username=orvane",
         "--encoding=UTF8", "--locale=C.UTF-8", "--no-sync", "--no-instructions"});
    int status = 0;
    return maker > 0 && waitpid(maker, &status, 0) == maker && status == 0 && CloseNetwork(keeper);
}

// Forgets a server that has ended.
bool IsRunning(Keeper& keeper)
{
    if (keeper.server > 0 && waitpid(keeper.server, nullptr, WNOHANG) == keeper.server)
        keeper.server = 0;
    return keeper.server > 0;
}

// The server writes its state into the eighth line of this file.
bool IsReady(const Keeper& keeper)
{
    std::ifstream file(keeper.Data() + "/postmaster.pid");
    std::string line;
    for (int number = 0; number < 8; ++number)
        std::getline(file, line);
    return line.rfind("ready", 0) == 0;
}

bool StartServer(Keeper& keeper)
{
    std::error_code ignored;
    std::filesystem::remove(keeper.Data() + "/postmaster.pid", ignored); // of a server that crashed
    keeper.server = Start(
        keeper,
        {keeper.programs + "/postgres", "-D", keeper.Data(), "-k", keeper.folder, "-c", "fsync=off", "-c",
         "full_page_writes=off", "-c", "wal_level=minimal", "-c", "max_wal_senders=0", "-c",
         "shared_buffers=32MB", "-c", "lc_messages=C"});
    for (int waited = 0; waited < LongestStart && IsRunning(keeper); waited += 10) {
        if (IsReady(keeper))
            return true;
        poll(nullptr, 0, 10);
    }
    return false;
}

void StopServer(Keeper& keeper, int signal)
{
    if (!IsRunning(keeper))
        return;
    kill(keeper.server, signal);
    for (int waited = 0; waited < LongestStop && IsRunning(keeper); waited += 10)
        poll(nullptr, 0, 10);
    if (IsRunning(keeper)) {
        kill(keeper.server, SIGKILL);
        waitpid(keeper.server, nullptr, 0);
        keeper.server = 0;
    }
}

void Obey(Keeper& keeper, const std::string& order)
{
    if (order == "start")
        return Say(StartServer(keeper) ? "ready" : "failed");
    StopServer(keeper, order == "crash" ? SIGQUIT : SIGINT);
    Say("stopped");
}

void ObeyUntilTheEnd(Keeper& keeper)
{
    std::string order;
    while (!wasAsked) {
        char letter = 0;
        if (!HasInput(-1))
            continue;
        if (read(STDIN_FILENO, &letter, 1) != 1)
            return;
        if (letter != '\n') {
            order += letter;
        } else {
            Obey(keeper, order);
            order.clear();
        }
    }
}

// Keys and terminals do not reach the keeper; whoever asks it to end gets an orderly end.
void PrepareForSignals()
{
    setsid();
    struct sigaction action {
    };
    action.sa_handler = NoteSignal; // without SA_RESTART, so that waiting ends
    sigaction(SIGTERM, &action, nullptr);
    sigaction(SIGINT, &action, nullptr);
    sigaction(SIGHUP, &action, nullptr);
    std::signal(SIGPIPE, SIG_IGN);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3)
        return 2;
    PrepareForSignals();
    Keeper keeper{argv[1], {}, 0};
    const bool hasFolder = MakeFolder(keeper, argv[2]);
    Say(hasFolder ? keeper.folder.c_str() : "");
    Say(hasFolder && MakeCluster(keeper) && StartServer(keeper) ? "ready" : "failed");
    ObeyUntilTheEnd(keeper);
    StopServer(keeper, SIGQUIT);
    std::error_code ignored;
    if (hasFolder)
        std::filesystem::remove_all(keeper.folder, ignored);
    return 0;
}
