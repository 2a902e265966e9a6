// SPDX-License-Identifier: Apache-2.0
// Entry of the command-line tool.
int main()
{
    return 0;
}
