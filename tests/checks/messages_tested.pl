# Run by messages_tested.sh in the folder of the sources.
use strict;
use warnings;

# A source without its comments and its quote marks as characters.
sub code {
    my ($path) = @_;
    open(my $file, '<', $path) or die "$path: $!\n";
    local $/;
    my $source = <$file>;
    $source =~ s{(^|\s)//[^\n]*}{$1}gm;
    $source =~ s{'"'}{}g;
    return $source;
}

# The string literals of a piece of code, neighbors joined.
sub literals {
    my ($code) = @_;
    my @found;
    while ($code =~ /((?:"(?:\\.|[^"\\])*"\s*)+)/g) {
        my $literal = $1;
        $literal =~ s/"\s*"//g;
        $literal =~ s/^"|"\s*$//g;
        push @found, $literal;
    }
    return @found;
}

# What is handed to a box directly, be it one word: its text and its title.
sub box_literals {
    my ($code) = @_;
    my @found;
    while ($code =~ /\b(?:tell|tell_titled|ask)(\((?:[^()"]|"(?:\\.|[^"\\])*"|(?1))*\))/g) {
        push @found, grep { /[A-Za-z]/ } literals($1);
    }
    return @found;
}

my @tests = split /\n/, `find tests -name '*.cpp' -o -name '*.h' -o -name '*.road'`;
my $told = join("\n", map { literals(code($_)) } @tests);

my ($texts, $failed) = (0, 0);
sub expect_in_tests {
    my ($text, $path) = @_;
    ++$texts;
    return if index($told, $text) >= 0;
    print "no test has \"$text\" of $path\n";
    $failed = 1;
}

# What a box is filled with otherwise, and what a review tells: literals of three words and more that are no statement.
my $unseen = qr{^src/(engine/step|reports/cell_steps)\.cpp$};
for my $path (split /\n/, `find src -name '*.cpp' -o -name '*.h'`) {
    my $code = code($path);
    expect_in_tests($_, $path) for box_literals($code);
    next if $path =~ $unseen || $path !~ m{^src/(?:(?:engine|store|editor|reports)/|review/(?:\w+_rules|sump_depths|fresh_road)\.cpp$)};
    for my $text (literals($code)) {
        next if $text !~ /^ ?[-A-Z]/ || ($text =~ tr/ //) < 2 || $text !~ /[A-Za-z]{2}/;
        next if $text =~ /[|=]|^ ?(SELECT|UPDATE|ALTER|WHERE|TOTAL_DISCHARGE AS|FROM)/i;
        expect_in_tests($text, $path);
    }
}
print "$texts texts\n";
exit($failed || $texts < 80);
