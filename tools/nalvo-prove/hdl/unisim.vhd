-- Models of the primitives of the vendor's devices that such cores are made of, as far as their users' guides describe
-- them: truth tables, flip-flops, carry chains and distributed memories, without delays. For the library unisim.

library ieee;
use ieee.std_logic_1164.all;

package prove_bits is

    -- A number without unknown bits; those count as 0.
    function number_of(value : std_logic_vector) return natural;

    -- The bit of a truth table.
    function bit_at(truth : bit_vector; place : std_logic_vector) return std_logic;

end package prove_bits;

package body prove_bits is

    function number_of(value : std_logic_vector) return natural is
        variable number : natural := 0;
    begin
        for i in value'range loop
            number := number * 2;
            if value(i) = '1' or value(i) = 'H' then
                number := number + 1;
            end if;
        end loop;
        return number;
    end function number_of;

    function bit_at(truth : bit_vector; place : std_logic_vector) return std_logic is
        alias bits : bit_vector(truth'length - 1 downto 0) is truth;
    begin
        return to_stdulogic(bits(number_of(place)));
    end function bit_at;

end package body prove_bits;

library ieee;
use ieee.std_logic_1164.all;

package vcomponents is

    component LUT1 is
        generic (
            INIT : bit_vector(1 downto 0) := (others => '0')
        );
        port (
            O : out std_logic;
            I0 : in  std_logic
        );
    end component LUT1;

    component LUT2 is
        generic (
            INIT : bit_vector(3 downto 0) := (others => '0')
        );
        port (
            O : out std_logic;
            I0 : in  std_logic;
            I1 : in  std_logic
        );
    end component LUT2;

    component LUT3 is
        generic (
            INIT : bit_vector(7 downto 0) := (others => '0')
        );
        port (
            O : out std_logic;
            I0 : in  std_logic;
            I1 : in  std_logic;
            I2 : in  std_logic
        );
    end component LUT3;

    component LUT4 is
        generic (
            INIT : bit_vector(15 downto 0) := (others => '0')
        );
        port (
            O : out std_logic;
            I0 : in  std_logic;
            I1 : in  std_logic;
            I2 : in  std_logic;
            I3 : in  std_logic
        );
    end component LUT4;

    component LUT5 is
        generic (
            INIT : bit_vector(31 downto 0) := (others => '0')
        );
        port (
            O : out std_logic;
            I0 : in  std_logic;
            I1 : in  std_logic;
            I2 : in  std_logic;
            I3 : in  std_logic;
            I4 : in  std_logic
        );
    end component LUT5;

    component LUT6 is
        generic (
            INIT : bit_vector(63 downto 0) := (others => '0')
        );
        port (
            O : out std_logic;
            I0 : in  std_logic;
            I1 : in  std_logic;
            I2 : in  std_logic;
            I3 : in  std_logic;
            I4 : in  std_logic;
            I5 : in  std_logic
        );
    end component LUT6;

    component LUT6_2 is
        generic (
            INIT : bit_vector(63 downto 0) := (others => '0')
        );
        port (
            O5 : out std_logic;
            O6 : out std_logic;
            I0 : in  std_logic;
            I1 : in  std_logic;
            I2 : in  std_logic;
            I3 : in  std_logic;
            I4 : in  std_logic;
            I5 : in  std_logic
        );
    end component LUT6_2;

    component FD is
        generic (
            INIT : bit := '0'
        );
        port (
            Q : out std_logic;
            C : in  std_logic;
            D : in  std_logic
        );
    end component FD;

    component FDE is
        generic (
            INIT : bit := '0'
        );
        port (
            Q : out std_logic;
            C : in  std_logic;
            CE : in  std_logic;
            D : in  std_logic
        );
    end component FDE;

    component FDR is
        generic (
            INIT : bit := '0'
        );
        port (
            Q : out std_logic;
            C : in  std_logic;
            D : in  std_logic;
            R : in  std_logic
        );
    end component FDR;

    component FDRE is
        generic (
            INIT : bit := '0'
        );
        port (
            Q : out std_logic;
            C : in  std_logic;
            CE : in  std_logic;
            D : in  std_logic;
            R : in  std_logic
        );
    end component FDRE;

    component FDS is
        generic (
            INIT : bit := '1'
        );
        port (
            Q : out std_logic;
            C : in  std_logic;
            D : in  std_logic;
            S : in  std_logic
        );
    end component FDS;

    component FDSE is
        generic (
            INIT : bit := '1'
        );
        port (
            Q : out std_logic;
            C : in  std_logic;
            CE : in  std_logic;
            D : in  std_logic;
            S : in  std_logic
        );
    end component FDSE;

    component FDRS is
        generic (
            INIT : bit := '0'
        );
        port (
            Q : out std_logic;
            C : in  std_logic;
            D : in  std_logic;
            R : in  std_logic;
            S : in  std_logic
        );
    end component FDRS;

    component FDRSE is
        generic (
            INIT : bit := '0'
        );
        port (
            Q : out std_logic;
            C : in  std_logic;
            CE : in  std_logic;
            D : in  std_logic;
            R : in  std_logic;
            S : in  std_logic
        );
    end component FDRSE;

    component FDC is
        generic (
            INIT : bit := '0'
        );
        port (
            Q : out std_logic;
            C : in  std_logic;
            D : in  std_logic;
            CLR : in  std_logic
        );
    end component FDC;

    component FDCE is
        generic (
            INIT : bit := '0'
        );
        port (
            Q : out std_logic;
            C : in  std_logic;
            CE : in  std_logic;
            D : in  std_logic;
            CLR : in  std_logic
        );
    end component FDCE;

    component FDP is
        generic (
            INIT : bit := '1'
        );
        port (
            Q : out std_logic;
            C : in  std_logic;
            D : in  std_logic;
            PRE : in  std_logic
        );
    end component FDP;

    component FDPE is
        generic (
            INIT : bit := '1'
        );
        port (
            Q : out std_logic;
            C : in  std_logic;
            CE : in  std_logic;
            D : in  std_logic;
            PRE : in  std_logic
        );
    end component FDPE;

    component MUXCY is
        port (
            O : out std_logic;
            CI : in  std_logic;
            DI : in  std_logic;
            S : in  std_logic
        );
    end component MUXCY;

    component XORCY is
        port (
            O : out std_logic;
            CI : in  std_logic;
            LI : in  std_logic
        );
    end component XORCY;

    component MUXF5 is
        port (
            O : out std_logic;
            I0 : in  std_logic;
            I1 : in  std_logic;
            S : in  std_logic
        );
    end component MUXF5;

    component MUXF6 is
        port (
            O : out std_logic;
            I0 : in  std_logic;
            I1 : in  std_logic;
            S : in  std_logic
        );
    end component MUXF6;

    component MUXF7 is
        port (
            O : out std_logic;
            I0 : in  std_logic;
            I1 : in  std_logic;
            S : in  std_logic
        );
    end component MUXF7;

    component MUXF8 is
        port (
            O : out std_logic;
            I0 : in  std_logic;
            I1 : in  std_logic;
            S : in  std_logic
        );
    end component MUXF8;

    component INV is
        port (
            O : out std_logic;
            I : in  std_logic
        );
    end component INV;

    component RAM16X1S is
        generic (
            INIT : bit_vector(15 downto 0) := (others => '0')
        );
        port (
            O : out std_logic;
            A0 : in  std_logic;
            A1 : in  std_logic;
            A2 : in  std_logic;
            A3 : in  std_logic;
            D : in  std_logic;
            WCLK : in  std_logic;
            WE : in  std_logic
        );
    end component RAM16X1S;

    component RAM32X1S is
        generic (
            INIT : bit_vector(31 downto 0) := (others => '0')
        );
        port (
            O : out std_logic;
            A0 : in  std_logic;
            A1 : in  std_logic;
            A2 : in  std_logic;
            A3 : in  std_logic;
            A4 : in  std_logic;
            D : in  std_logic;
            WCLK : in  std_logic;
            WE : in  std_logic
        );
    end component RAM32X1S;

    component RAM64X1S is
        generic (
            INIT : bit_vector(63 downto 0) := (others => '0')
        );
        port (
            O : out std_logic;
            A0 : in  std_logic;
            A1 : in  std_logic;
            A2 : in  std_logic;
            A3 : in  std_logic;
            A4 : in  std_logic;
            A5 : in  std_logic;
            D : in  std_logic;
            WCLK : in  std_logic;
            WE : in  std_logic
        );
    end component RAM64X1S;

    component RAM128X1S is
        generic (
            INIT : bit_vector(127 downto 0) := (others => '0')
        );
        port (
            O : out std_logic;
            A0 : in  std_logic;
            A1 : in  std_logic;
            A2 : in  std_logic;
            A3 : in  std_logic;
            A4 : in  std_logic;
            A5 : in  std_logic;
            A6 : in  std_logic;
            D : in  std_logic;
            WCLK : in  std_logic;
            WE : in  std_logic
        );
    end component RAM128X1S;

    component RAM256X1S is
        generic (
            INIT : bit_vector(255 downto 0) := (others => '0')
        );
        port (
            O : out std_logic;
            A : in  std_logic_vector(7 downto 0);
            D : in  std_logic;
            WCLK : in  std_logic;
            WE : in  std_logic
        );
    end component RAM256X1S;

    component RAM16X1D is
        generic (
            INIT : bit_vector(15 downto 0) := (others => '0')
        );
        port (
            DPO : out std_logic;
            SPO : out std_logic;
            A0 : in  std_logic;
            A1 : in  std_logic;
            A2 : in  std_logic;
            A3 : in  std_logic;
            D : in  std_logic;
            DPRA0 : in  std_logic;
            DPRA1 : in  std_logic;
            DPRA2 : in  std_logic;
            DPRA3 : in  std_logic;
            WCLK : in  std_logic;
            WE : in  std_logic
        );
    end component RAM16X1D;

    component RAM32X1D is
        generic (
            INIT : bit_vector(31 downto 0) := (others => '0')
        );
        port (
            DPO : out std_logic;
            SPO : out std_logic;
            A0 : in  std_logic;
            A1 : in  std_logic;
            A2 : in  std_logic;
            A3 : in  std_logic;
            A4 : in  std_logic;
            D : in  std_logic;
            DPRA0 : in  std_logic;
            DPRA1 : in  std_logic;
            DPRA2 : in  std_logic;
            DPRA3 : in  std_logic;
            DPRA4 : in  std_logic;
            WCLK : in  std_logic;
            WE : in  std_logic
        );
    end component RAM32X1D;

    component RAM64X1D is
        generic (
            INIT : bit_vector(63 downto 0) := (others => '0')
        );
        port (
            DPO : out std_logic;
            SPO : out std_logic;
            A0 : in  std_logic;
            A1 : in  std_logic;
            A2 : in  std_logic;
            A3 : in  std_logic;
            A4 : in  std_logic;
            A5 : in  std_logic;
            D : in  std_logic;
            DPRA0 : in  std_logic;
            DPRA1 : in  std_logic;
            DPRA2 : in  std_logic;
            DPRA3 : in  std_logic;
            DPRA4 : in  std_logic;
            DPRA5 : in  std_logic;
            WCLK : in  std_logic;
            WE : in  std_logic
        );
    end component RAM64X1D;

    component RAM128X1D is
        generic (
            INIT : bit_vector(127 downto 0) := (others => '0')
        );
        port (
            DPO : out std_logic;
            SPO : out std_logic;
            A : in  std_logic_vector(6 downto 0);
            D : in  std_logic;
            DPRA : in  std_logic_vector(6 downto 0);
            WCLK : in  std_logic;
            WE : in  std_logic
        );
    end component RAM128X1D;

    component RAM32M is
        generic (
            INIT_A : bit_vector(63 downto 0) := (others => '0');
            INIT_B : bit_vector(63 downto 0) := (others => '0');
            INIT_C : bit_vector(63 downto 0) := (others => '0');
            INIT_D : bit_vector(63 downto 0) := (others => '0')
        );
        port (
            DOA : out std_logic_vector(1 downto 0);
            DOB : out std_logic_vector(1 downto 0);
            DOC : out std_logic_vector(1 downto 0);
            DOD : out std_logic_vector(1 downto 0);
            ADDRA : in  std_logic_vector(4 downto 0);
            ADDRB : in  std_logic_vector(4 downto 0);
            ADDRC : in  std_logic_vector(4 downto 0);
            ADDRD : in  std_logic_vector(4 downto 0);
            DIA : in  std_logic_vector(1 downto 0);
            DIB : in  std_logic_vector(1 downto 0);
            DIC : in  std_logic_vector(1 downto 0);
            DID : in  std_logic_vector(1 downto 0);
            WCLK : in  std_logic;
            WE : in  std_logic
        );
    end component RAM32M;

    component RAM64M is
        generic (
            INIT_A : bit_vector(63 downto 0) := (others => '0');
            INIT_B : bit_vector(63 downto 0) := (others => '0');
            INIT_C : bit_vector(63 downto 0) := (others => '0');
            INIT_D : bit_vector(63 downto 0) := (others => '0')
        );
        port (
            DOA : out std_logic;
            DOB : out std_logic;
            DOC : out std_logic;
            DOD : out std_logic;
            ADDRA : in  std_logic_vector(5 downto 0);
            ADDRB : in  std_logic_vector(5 downto 0);
            ADDRC : in  std_logic_vector(5 downto 0);
            ADDRD : in  std_logic_vector(5 downto 0);
            DIA : in  std_logic;
            DIB : in  std_logic;
            DIC : in  std_logic;
            DID : in  std_logic;
            WCLK : in  std_logic;
            WE : in  std_logic
        );
    end component RAM64M;

end package vcomponents;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity LUT1 is
    generic (
        INIT : bit_vector(1 downto 0) := (others => '0')
    );
    port (
        O : out std_logic;
        I0 : in  std_logic
    );
end entity LUT1;

architecture model of LUT1 is
begin
    O <= bit_at(INIT, "" & I0);
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity LUT2 is
    generic (
        INIT : bit_vector(3 downto 0) := (others => '0')
    );
    port (
        O : out std_logic;
        I0 : in  std_logic;
        I1 : in  std_logic
    );
end entity LUT2;

architecture model of LUT2 is
begin
    O <= bit_at(INIT, I1 & I0);
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity LUT3 is
    generic (
        INIT : bit_vector(7 downto 0) := (others => '0')
    );
    port (
        O : out std_logic;
        I0 : in  std_logic;
        I1 : in  std_logic;
        I2 : in  std_logic
    );
end entity LUT3;

architecture model of LUT3 is
begin
    O <= bit_at(INIT, I2 & I1 & I0);
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity LUT4 is
    generic (
        INIT : bit_vector(15 downto 0) := (others => '0')
    );
    port (
        O : out std_logic;
        I0 : in  std_logic;
        I1 : in  std_logic;
        I2 : in  std_logic;
        I3 : in  std_logic
    );
end entity LUT4;

architecture model of LUT4 is
begin
    O <= bit_at(INIT, I3 & I2 & I1 & I0);
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity LUT5 is
    generic (
        INIT : bit_vector(31 downto 0) := (others => '0')
    );
    port (
        O : out std_logic;
        I0 : in  std_logic;
        I1 : in  std_logic;
        I2 : in  std_logic;
        I3 : in  std_logic;
        I4 : in  std_logic
    );
end entity LUT5;

architecture model of LUT5 is
begin
    O <= bit_at(INIT, I4 & I3 & I2 & I1 & I0);
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity LUT6 is
    generic (
        INIT : bit_vector(63 downto 0) := (others => '0')
    );
    port (
        O : out std_logic;
        I0 : in  std_logic;
        I1 : in  std_logic;
        I2 : in  std_logic;
        I3 : in  std_logic;
        I4 : in  std_logic;
        I5 : in  std_logic
    );
end entity LUT6;

architecture model of LUT6 is
begin
    O <= bit_at(INIT, I5 & I4 & I3 & I2 & I1 & I0);
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity LUT6_2 is
    generic (
        INIT : bit_vector(63 downto 0) := (others => '0')
    );
    port (
        O5 : out std_logic;
        O6 : out std_logic;
        I0 : in  std_logic;
        I1 : in  std_logic;
        I2 : in  std_logic;
        I3 : in  std_logic;
        I4 : in  std_logic;
        I5 : in  std_logic
    );
end entity LUT6_2;

architecture model of LUT6_2 is
begin
    O5 <= bit_at(INIT, '0' & I4 & I3 & I2 & I1 & I0);
    O6 <= bit_at(INIT, I5 & I4 & I3 & I2 & I1 & I0);
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity FD is
    generic (
        INIT : bit := '0'
    );
    port (
        Q : out std_logic;
        C : in  std_logic;
        D : in  std_logic
    );
end entity FD;

architecture model of FD is
    signal state : std_logic := to_stdulogic(INIT);
begin
    process (C)
    begin
        if rising_edge(C) then
            state <= D;
        end if;
    end process;

    Q <= state;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity FDE is
    generic (
        INIT : bit := '0'
    );
    port (
        Q : out std_logic;
        C : in  std_logic;
        CE : in  std_logic;
        D : in  std_logic
    );
end entity FDE;

architecture model of FDE is
    signal state : std_logic := to_stdulogic(INIT);
begin
    process (C)
    begin
        if rising_edge(C) then
            if CE = '1' then
                state <= D;
            end if;
        end if;
    end process;

    Q <= state;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity FDR is
    generic (
        INIT : bit := '0'
    );
    port (
        Q : out std_logic;
        C : in  std_logic;
        D : in  std_logic;
        R : in  std_logic
    );
end entity FDR;

architecture model of FDR is
    signal state : std_logic := to_stdulogic(INIT);
begin
    process (C)
    begin
        if rising_edge(C) then
            if R = '1' then
                state <= '0';
            else
                state <= D;
            end if;
        end if;
    end process;

    Q <= state;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity FDRE is
    generic (
        INIT : bit := '0'
    );
    port (
        Q : out std_logic;
        C : in  std_logic;
        CE : in  std_logic;
        D : in  std_logic;
        R : in  std_logic
    );
end entity FDRE;

architecture model of FDRE is
    signal state : std_logic := to_stdulogic(INIT);
begin
    process (C)
    begin
        if rising_edge(C) then
            if R = '1' then
                state <= '0';
            elsif CE = '1' then
                state <= D;
            end if;
        end if;
    end process;

    Q <= state;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity FDS is
    generic (
        INIT : bit := '1'
    );
    port (
        Q : out std_logic;
        C : in  std_logic;
        D : in  std_logic;
        S : in  std_logic
    );
end entity FDS;

architecture model of FDS is
    signal state : std_logic := to_stdulogic(INIT);
begin
    process (C)
    begin
        if rising_edge(C) then
            if S = '1' then
                state <= '1';
            else
                state <= D;
            end if;
        end if;
    end process;

    Q <= state;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity FDSE is
    generic (
        INIT : bit := '1'
    );
    port (
        Q : out std_logic;
        C : in  std_logic;
        CE : in  std_logic;
        D : in  std_logic;
        S : in  std_logic
    );
end entity FDSE;

architecture model of FDSE is
    signal state : std_logic := to_stdulogic(INIT);
begin
    process (C)
    begin
        if rising_edge(C) then
            if S = '1' then
                state <= '1';
            elsif CE = '1' then
                state <= D;
            end if;
        end if;
    end process;

    Q <= state;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity FDRS is
    generic (
        INIT : bit := '0'
    );
    port (
        Q : out std_logic;
        C : in  std_logic;
        D : in  std_logic;
        R : in  std_logic;
        S : in  std_logic
    );
end entity FDRS;

architecture model of FDRS is
    signal state : std_logic := to_stdulogic(INIT);
begin
    process (C)
    begin
        if rising_edge(C) then
            if R = '1' then
                state <= '0';
            elsif S = '1' then
                state <= '1';
            else
                state <= D;
            end if;
        end if;
    end process;

    Q <= state;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity FDRSE is
    generic (
        INIT : bit := '0'
    );
    port (
        Q : out std_logic;
        C : in  std_logic;
        CE : in  std_logic;
        D : in  std_logic;
        R : in  std_logic;
        S : in  std_logic
    );
end entity FDRSE;

architecture model of FDRSE is
    signal state : std_logic := to_stdulogic(INIT);
begin
    process (C)
    begin
        if rising_edge(C) then
            if R = '1' then
                state <= '0';
            elsif S = '1' then
                state <= '1';
            elsif CE = '1' then
                state <= D;
            end if;
        end if;
    end process;

    Q <= state;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity FDC is
    generic (
        INIT : bit := '0'
    );
    port (
        Q : out std_logic;
        C : in  std_logic;
        D : in  std_logic;
        CLR : in  std_logic
    );
end entity FDC;

architecture model of FDC is
    signal state : std_logic := to_stdulogic(INIT);
begin
    process (C, CLR)
    begin
        if CLR = '1' then
            state <= '0';
        elsif rising_edge(C) then
            state <= D;
        end if;
    end process;

    Q <= state;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity FDCE is
    generic (
        INIT : bit := '0'
    );
    port (
        Q : out std_logic;
        C : in  std_logic;
        CE : in  std_logic;
        D : in  std_logic;
        CLR : in  std_logic
    );
end entity FDCE;

architecture model of FDCE is
    signal state : std_logic := to_stdulogic(INIT);
begin
    process (C, CLR)
    begin
        if CLR = '1' then
            state <= '0';
        elsif rising_edge(C) then
            if CE = '1' then
                state <= D;
            end if;
        end if;
    end process;

    Q <= state;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity FDP is
    generic (
        INIT : bit := '1'
    );
    port (
        Q : out std_logic;
        C : in  std_logic;
        D : in  std_logic;
        PRE : in  std_logic
    );
end entity FDP;

architecture model of FDP is
    signal state : std_logic := to_stdulogic(INIT);
begin
    process (C, PRE)
    begin
        if PRE = '1' then
            state <= '1';
        elsif rising_edge(C) then
            state <= D;
        end if;
    end process;

    Q <= state;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity FDPE is
    generic (
        INIT : bit := '1'
    );
    port (
        Q : out std_logic;
        C : in  std_logic;
        CE : in  std_logic;
        D : in  std_logic;
        PRE : in  std_logic
    );
end entity FDPE;

architecture model of FDPE is
    signal state : std_logic := to_stdulogic(INIT);
begin
    process (C, PRE)
    begin
        if PRE = '1' then
            state <= '1';
        elsif rising_edge(C) then
            if CE = '1' then
                state <= D;
            end if;
        end if;
    end process;

    Q <= state;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity MUXCY is
    port (
        O : out std_logic;
        CI : in  std_logic;
        DI : in  std_logic;
        S : in  std_logic
    );
end entity MUXCY;

architecture model of MUXCY is
begin
    O <= CI when S = '1' else DI;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity XORCY is
    port (
        O : out std_logic;
        CI : in  std_logic;
        LI : in  std_logic
    );
end entity XORCY;

architecture model of XORCY is
begin
    O <= CI xor LI;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity MUXF5 is
    port (
        O : out std_logic;
        I0 : in  std_logic;
        I1 : in  std_logic;
        S : in  std_logic
    );
end entity MUXF5;

architecture model of MUXF5 is
begin
    O <= I1 when S = '1' else I0;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity MUXF6 is
    port (
        O : out std_logic;
        I0 : in  std_logic;
        I1 : in  std_logic;
        S : in  std_logic
    );
end entity MUXF6;

architecture model of MUXF6 is
begin
    O <= I1 when S = '1' else I0;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity MUXF7 is
    port (
        O : out std_logic;
        I0 : in  std_logic;
        I1 : in  std_logic;
        S : in  std_logic
    );
end entity MUXF7;

architecture model of MUXF7 is
begin
    O <= I1 when S = '1' else I0;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity MUXF8 is
    port (
        O : out std_logic;
        I0 : in  std_logic;
        I1 : in  std_logic;
        S : in  std_logic
    );
end entity MUXF8;

architecture model of MUXF8 is
begin
    O <= I1 when S = '1' else I0;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity INV is
    port (
        O : out std_logic;
        I : in  std_logic
    );
end entity INV;

architecture model of INV is
begin
    O <= not I;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity RAM16X1S is
    generic (
        INIT : bit_vector(15 downto 0) := (others => '0')
    );
    port (
        O : out std_logic;
        A0 : in  std_logic;
        A1 : in  std_logic;
        A2 : in  std_logic;
        A3 : in  std_logic;
        D : in  std_logic;
        WCLK : in  std_logic;
        WE : in  std_logic
    );
end entity RAM16X1S;

architecture model of RAM16X1S is
    signal memory : std_logic_vector(15 downto 0) := to_stdlogicvector(INIT);
    signal place  : std_logic_vector(3 downto 0);
begin
    place <= A3 & A2 & A1 & A0;

    process (WCLK)
    begin
        if rising_edge(WCLK) and WE = '1' then
            memory(number_of(place)) <= D;
        end if;
    end process;

    O <= memory(number_of(place));
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity RAM32X1S is
    generic (
        INIT : bit_vector(31 downto 0) := (others => '0')
    );
    port (
        O : out std_logic;
        A0 : in  std_logic;
        A1 : in  std_logic;
        A2 : in  std_logic;
        A3 : in  std_logic;
        A4 : in  std_logic;
        D : in  std_logic;
        WCLK : in  std_logic;
        WE : in  std_logic
    );
end entity RAM32X1S;

architecture model of RAM32X1S is
    signal memory : std_logic_vector(31 downto 0) := to_stdlogicvector(INIT);
    signal place  : std_logic_vector(4 downto 0);
begin
    place <= A4 & A3 & A2 & A1 & A0;

    process (WCLK)
    begin
        if rising_edge(WCLK) and WE = '1' then
            memory(number_of(place)) <= D;
        end if;
    end process;

    O <= memory(number_of(place));
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity RAM64X1S is
    generic (
        INIT : bit_vector(63 downto 0) := (others => '0')
    );
    port (
        O : out std_logic;
        A0 : in  std_logic;
        A1 : in  std_logic;
        A2 : in  std_logic;
        A3 : in  std_logic;
        A4 : in  std_logic;
        A5 : in  std_logic;
        D : in  std_logic;
        WCLK : in  std_logic;
        WE : in  std_logic
    );
end entity RAM64X1S;

architecture model of RAM64X1S is
    signal memory : std_logic_vector(63 downto 0) := to_stdlogicvector(INIT);
    signal place  : std_logic_vector(5 downto 0);
begin
    place <= A5 & A4 & A3 & A2 & A1 & A0;

    process (WCLK)
    begin
        if rising_edge(WCLK) and WE = '1' then
            memory(number_of(place)) <= D;
        end if;
    end process;

    O <= memory(number_of(place));
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity RAM128X1S is
    generic (
        INIT : bit_vector(127 downto 0) := (others => '0')
    );
    port (
        O : out std_logic;
        A0 : in  std_logic;
        A1 : in  std_logic;
        A2 : in  std_logic;
        A3 : in  std_logic;
        A4 : in  std_logic;
        A5 : in  std_logic;
        A6 : in  std_logic;
        D : in  std_logic;
        WCLK : in  std_logic;
        WE : in  std_logic
    );
end entity RAM128X1S;

architecture model of RAM128X1S is
    signal memory : std_logic_vector(127 downto 0) := to_stdlogicvector(INIT);
    signal place  : std_logic_vector(6 downto 0);
begin
    place <= A6 & A5 & A4 & A3 & A2 & A1 & A0;

    process (WCLK)
    begin
        if rising_edge(WCLK) and WE = '1' then
            memory(number_of(place)) <= D;
        end if;
    end process;

    O <= memory(number_of(place));
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity RAM256X1S is
    generic (
        INIT : bit_vector(255 downto 0) := (others => '0')
    );
    port (
        O : out std_logic;
        A : in  std_logic_vector(7 downto 0);
        D : in  std_logic;
        WCLK : in  std_logic;
        WE : in  std_logic
    );
end entity RAM256X1S;

architecture model of RAM256X1S is
    signal memory : std_logic_vector(255 downto 0) := to_stdlogicvector(INIT);
    signal place  : std_logic_vector(7 downto 0);
begin
    place <= A;

    process (WCLK)
    begin
        if rising_edge(WCLK) and WE = '1' then
            memory(number_of(place)) <= D;
        end if;
    end process;

    O <= memory(number_of(place));
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity RAM16X1D is
    generic (
        INIT : bit_vector(15 downto 0) := (others => '0')
    );
    port (
        DPO : out std_logic;
        SPO : out std_logic;
        A0 : in  std_logic;
        A1 : in  std_logic;
        A2 : in  std_logic;
        A3 : in  std_logic;
        D : in  std_logic;
        DPRA0 : in  std_logic;
        DPRA1 : in  std_logic;
        DPRA2 : in  std_logic;
        DPRA3 : in  std_logic;
        WCLK : in  std_logic;
        WE : in  std_logic
    );
end entity RAM16X1D;

architecture model of RAM16X1D is
    signal memory : std_logic_vector(15 downto 0) := to_stdlogicvector(INIT);
    signal place  : std_logic_vector(3 downto 0);
    signal other  : std_logic_vector(3 downto 0);
begin
    place <= A3 & A2 & A1 & A0;
    other <= DPRA3 & DPRA2 & DPRA1 & DPRA0;

    process (WCLK)
    begin
        if rising_edge(WCLK) and WE = '1' then
            memory(number_of(place)) <= D;
        end if;
    end process;

    SPO <= memory(number_of(place));
    DPO <= memory(number_of(other));
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity RAM32X1D is
    generic (
        INIT : bit_vector(31 downto 0) := (others => '0')
    );
    port (
        DPO : out std_logic;
        SPO : out std_logic;
        A0 : in  std_logic;
        A1 : in  std_logic;
        A2 : in  std_logic;
        A3 : in  std_logic;
        A4 : in  std_logic;
        D : in  std_logic;
        DPRA0 : in  std_logic;
        DPRA1 : in  std_logic;
        DPRA2 : in  std_logic;
        DPRA3 : in  std_logic;
        DPRA4 : in  std_logic;
        WCLK : in  std_logic;
        WE : in  std_logic
    );
end entity RAM32X1D;

architecture model of RAM32X1D is
    signal memory : std_logic_vector(31 downto 0) := to_stdlogicvector(INIT);
    signal place  : std_logic_vector(4 downto 0);
    signal other  : std_logic_vector(4 downto 0);
begin
    place <= A4 & A3 & A2 & A1 & A0;
    other <= DPRA4 & DPRA3 & DPRA2 & DPRA1 & DPRA0;

    process (WCLK)
    begin
        if rising_edge(WCLK) and WE = '1' then
            memory(number_of(place)) <= D;
        end if;
    end process;

    SPO <= memory(number_of(place));
    DPO <= memory(number_of(other));
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity RAM64X1D is
    generic (
        INIT : bit_vector(63 downto 0) := (others => '0')
    );
    port (
        DPO : out std_logic;
        SPO : out std_logic;
        A0 : in  std_logic;
        A1 : in  std_logic;
        A2 : in  std_logic;
        A3 : in  std_logic;
        A4 : in  std_logic;
        A5 : in  std_logic;
        D : in  std_logic;
        DPRA0 : in  std_logic;
        DPRA1 : in  std_logic;
        DPRA2 : in  std_logic;
        DPRA3 : in  std_logic;
        DPRA4 : in  std_logic;
        DPRA5 : in  std_logic;
        WCLK : in  std_logic;
        WE : in  std_logic
    );
end entity RAM64X1D;

architecture model of RAM64X1D is
    signal memory : std_logic_vector(63 downto 0) := to_stdlogicvector(INIT);
    signal place  : std_logic_vector(5 downto 0);
    signal other  : std_logic_vector(5 downto 0);
begin
    place <= A5 & A4 & A3 & A2 & A1 & A0;
    other <= DPRA5 & DPRA4 & DPRA3 & DPRA2 & DPRA1 & DPRA0;

    process (WCLK)
    begin
        if rising_edge(WCLK) and WE = '1' then
            memory(number_of(place)) <= D;
        end if;
    end process;

    SPO <= memory(number_of(place));
    DPO <= memory(number_of(other));
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity RAM128X1D is
    generic (
        INIT : bit_vector(127 downto 0) := (others => '0')
    );
    port (
        DPO : out std_logic;
        SPO : out std_logic;
        A : in  std_logic_vector(6 downto 0);
        D : in  std_logic;
        DPRA : in  std_logic_vector(6 downto 0);
        WCLK : in  std_logic;
        WE : in  std_logic
    );
end entity RAM128X1D;

architecture model of RAM128X1D is
    signal memory : std_logic_vector(127 downto 0) := to_stdlogicvector(INIT);
    signal place  : std_logic_vector(6 downto 0);
    signal other  : std_logic_vector(6 downto 0);
begin
    place <= A;
    other <= DPRA;

    process (WCLK)
    begin
        if rising_edge(WCLK) and WE = '1' then
            memory(number_of(place)) <= D;
        end if;
    end process;

    SPO <= memory(number_of(place));
    DPO <= memory(number_of(other));
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity RAM32M is
    generic (
        INIT_A : bit_vector(63 downto 0) := (others => '0');
        INIT_B : bit_vector(63 downto 0) := (others => '0');
        INIT_C : bit_vector(63 downto 0) := (others => '0');
        INIT_D : bit_vector(63 downto 0) := (others => '0')
    );
    port (
        DOA : out std_logic_vector(1 downto 0);
        DOB : out std_logic_vector(1 downto 0);
        DOC : out std_logic_vector(1 downto 0);
        DOD : out std_logic_vector(1 downto 0);
        ADDRA : in  std_logic_vector(4 downto 0);
        ADDRB : in  std_logic_vector(4 downto 0);
        ADDRC : in  std_logic_vector(4 downto 0);
        ADDRD : in  std_logic_vector(4 downto 0);
        DIA : in  std_logic_vector(1 downto 0);
        DIB : in  std_logic_vector(1 downto 0);
        DIC : in  std_logic_vector(1 downto 0);
        DID : in  std_logic_vector(1 downto 0);
        WCLK : in  std_logic;
        WE : in  std_logic
    );
end entity RAM32M;

architecture model of RAM32M is
    signal memory_a : std_logic_vector(63 downto 0) := to_stdlogicvector(INIT_A);
    signal memory_b : std_logic_vector(63 downto 0) := to_stdlogicvector(INIT_B);
    signal memory_c : std_logic_vector(63 downto 0) := to_stdlogicvector(INIT_C);
    signal memory_d : std_logic_vector(63 downto 0) := to_stdlogicvector(INIT_D);
begin
    -- All are written at the address of D.
    process (WCLK)
    begin
        if rising_edge(WCLK) and WE = '1' then
            memory_a(2 * number_of(ADDRD) + 1 downto 2 * number_of(ADDRD)) <= DIA;
            memory_b(2 * number_of(ADDRD) + 1 downto 2 * number_of(ADDRD)) <= DIB;
            memory_c(2 * number_of(ADDRD) + 1 downto 2 * number_of(ADDRD)) <= DIC;
            memory_d(2 * number_of(ADDRD) + 1 downto 2 * number_of(ADDRD)) <= DID;
        end if;
    end process;

    DOA <= memory_a(2 * number_of(ADDRA) + 1 downto 2 * number_of(ADDRA));
    DOB <= memory_b(2 * number_of(ADDRB) + 1 downto 2 * number_of(ADDRB));
    DOC <= memory_c(2 * number_of(ADDRC) + 1 downto 2 * number_of(ADDRC));
    DOD <= memory_d(2 * number_of(ADDRD) + 1 downto 2 * number_of(ADDRD));
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity RAM64M is
    generic (
        INIT_A : bit_vector(63 downto 0) := (others => '0');
        INIT_B : bit_vector(63 downto 0) := (others => '0');
        INIT_C : bit_vector(63 downto 0) := (others => '0');
        INIT_D : bit_vector(63 downto 0) := (others => '0')
    );
    port (
        DOA : out std_logic;
        DOB : out std_logic;
        DOC : out std_logic;
        DOD : out std_logic;
        ADDRA : in  std_logic_vector(5 downto 0);
        ADDRB : in  std_logic_vector(5 downto 0);
        ADDRC : in  std_logic_vector(5 downto 0);
        ADDRD : in  std_logic_vector(5 downto 0);
        DIA : in  std_logic;
        DIB : in  std_logic;
        DIC : in  std_logic;
        DID : in  std_logic;
        WCLK : in  std_logic;
        WE : in  std_logic
    );
end entity RAM64M;

architecture model of RAM64M is
    signal memory_a : std_logic_vector(63 downto 0) := to_stdlogicvector(INIT_A);
    signal memory_b : std_logic_vector(63 downto 0) := to_stdlogicvector(INIT_B);
    signal memory_c : std_logic_vector(63 downto 0) := to_stdlogicvector(INIT_C);
    signal memory_d : std_logic_vector(63 downto 0) := to_stdlogicvector(INIT_D);
begin
    -- All are written at the address of D.
    process (WCLK)
    begin
        if rising_edge(WCLK) and WE = '1' then
            memory_a(number_of(ADDRD)) <= DIA;
            memory_b(number_of(ADDRD)) <= DIB;
            memory_c(number_of(ADDRD)) <= DIC;
            memory_d(number_of(ADDRD)) <= DID;
        end if;
    end process;

    DOA <= memory_a(number_of(ADDRA));
    DOB <= memory_b(number_of(ADDRB));
    DOC <= memory_c(number_of(ADDRC));
    DOD <= memory_d(number_of(ADDRD));
end architecture model;
