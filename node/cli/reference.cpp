#include <iostream>
#include <string>

#include "node/cli/Transcript.h"
#include "node/reference/BashCompletion.h"
#include "node/reference/CommandReference.h"
#include "node/reference/ManPage.h"

/// Prints what is made of the command table: "man VERSION DATE", "commands" or "bash".
int main(int argc, char** argv)
{
    const std::string what = argc > 1 ? argv[1] : "";
    if (what == "man" && argc == 4)
    {
        std::cout << node::reference::manPage(argv[2], argv[3]);
    }
    else if (what == "commands" && argc == 2)
    {
        std::cout << node::reference::commandReference(node::cli::transcript);
    }
    else if (what == "bash" && argc == 2)
    {
        std::cout << node::reference::bashCompletion();
    }
    else
    {
        std::cerr << "Usage: kel-node-reference man VERSION DATE | commands | bash\n";
        return 2;
    }
    return std::cout.flush() ? 0 : 1;
}
