# Run by messages_tested.sh in the folder of the sources.
use strict;
use warnings;

# The string literals of a source, neighbours joined.
sub literals {
    my ($path) = @_;
    open(my $file, '<', $path) or die "$path: $!\n";
    local $/;
    my $source = <$file>;
    $source =~ s{(^|\s)//[^\n]*}{$1}gm;
    $source =~ s{'"'}{}g;
    my @found;
    while ($source =~ /((?:"(?:\\.|[^"\\])*"\s*)+)/g) {
        my $literal = $1;
        $literal =~ s/"\s*"//g;
        $literal =~ s/^"|"\s*$//g;
        push @found, $literal;
    }
    return @found;
}

my @tests = split /\n/, `find tests -name '*.cpp' -o -name '*.h' -o -name '*.road'`;
my $told = join("\n", map { literals($_) } @tests);

# What a box is filled with: literals of three words and more that are no statement.
my $unseen = qr{^src/(engine/step|reports/cell_steps)\.cpp$};
my ($texts, $failed) = (0, 0);
for my $path (split /\n/, `find src/engine src/store src/editor src/reports -name '*.cpp' -o -name '*.h'`) {
    next if $path =~ $unseen;
    for my $text (literals($path)) {
        next if $text !~ /^ ?[-A-Z]/ || ($text =~ tr/ //) < 2 || $text !~ /[A-Za-z]{2}/;
        next if $text =~ /[|=]|^ ?(SELECT|UPDATE|ALTER|WHERE|TOTAL_DISCHARGE AS|FROM)/i;
        ++$texts;
        next if index($told, $text) >= 0;
        print "no test has \"$text\" of $path\n";
        $failed = 1;
    }
}
print "$texts texts\n";
exit($failed || $texts < 40);
