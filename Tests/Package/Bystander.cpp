// A host that links the module and names nothing of it.
int main() { return 0; }
