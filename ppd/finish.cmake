# Copies a compiled PPD and keeps its options in their groups: ppdc opens options of the JCL section with *JCLOpenUI, for
# which CUPS has a group of its own. Their section, and with it that nothing of them is written into a document, stays.
file(READ ${compiled} text)
string(REPLACE "\n*JCLOpenUI " "\n*OpenUI " text "${text}")
file(WRITE ${ppd} "${text}")
