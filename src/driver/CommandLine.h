#ifndef QRL_DRIVER_COMMANDLINE_H
#define QRL_DRIVER_COMMANDLINE_H

/// The program: `zuken2qrl BOARD.pcf [OUTPUT]`, with the arguments as `main` gets them. Pairs BOARD.pcf with BOARD.ftf
/// and BOARD.txt beside it, and translates them into OUTPUT, or into BOARD.qrl.
///
/// The result is the exit status: 1 when the board file or the footprint file doesn't exist, else 0, whatever was made
/// of their content. What went wrong is told by lines on standard output.
int RunCommandLine(int argc, const char* const* argv);

#endif
